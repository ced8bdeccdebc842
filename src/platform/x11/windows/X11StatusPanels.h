// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusPanel.h"
#include "platform/x11/connection/X11Connection.h"

/// Status panels as windows the window manager does not handle. Needs a QGuiApplication on the same display.
class X11StatusPanels final : public StatusPanels {
public:
    explicit X11StatusPanels(X11Connection &connection) : m_connection(connection) {}

    std::unique_ptr<StatusPanel> adopt(std::unique_ptr<QWindow> content) override;

private:
    X11Connection &m_connection;
};
