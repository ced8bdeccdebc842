// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

#include <QObject>

class X11Connection;

/// Windows brought forward through the window manager (EWMH). Focus is told by Qt, whose windows they are.
class X11Application : public QObject, public Application {
    Q_OBJECT

public:
    explicit X11Application(X11Connection &connection);

    void bringToFront(QWindow &window) override;
    /// Nothing to do: a window manager moves the focus on when the window that has it goes.
    void hide() override;
    void setActivationHandler(ActivationHandler handler) override { m_onActivation = std::move(handler); }
    void terminate() override;

private:
    X11Connection &m_connection;
    ActivationHandler m_onActivation;
};
