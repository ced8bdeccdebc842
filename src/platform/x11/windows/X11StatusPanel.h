// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusPanel.h"
#include "platform/x11/connection/X11Connection.h"

#include <QRectF>

/// One status panel. Without a compositing manager its window is cut to the outline, looked at anew whenever the panel
/// is shown or its outline changes.
class X11StatusPanel final : public StatusPanel {
public:
    X11StatusPanel(X11Connection &connection, std::unique_ptr<QWindow> window);
    ~X11StatusPanel() override;

    QSizeF size() const override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setFrameOrigin(QPointF origin) override;
    void setOutline(const QRectF &capsule) override;
    void orderFrontRegardless() override;
    void orderOut() override;

private:
    bool isComposited();
    void applyOutline();

    X11Connection &m_connection;
    std::unique_ptr<QWindow> m_window;
    QRectF m_outline;
};
