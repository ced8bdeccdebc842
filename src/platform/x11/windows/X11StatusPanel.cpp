// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11StatusPanel.h"

#include "platform/x11/windows/flushWindowSystem.h"

#include <QPainterPath>
#include <QRegion>
#include <QWindow>

#include <algorithm>

X11StatusPanel::X11StatusPanel(X11Connection &connection, std::unique_ptr<QWindow> window)
    : m_connection(connection), m_window(std::move(window))
{
    // Outside the window manager's care, which would take clicks away after each show, and out of its reach: no focus,
    // on every desktop, above full-screen windows.
    m_window->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
                       Qt::WindowTransparentForInput | Qt::X11BypassWindowManagerHint);
}

X11StatusPanel::~X11StatusPanel() = default;

QSizeF X11StatusPanel::size() const
{
    return m_window->size();
}

void X11StatusPanel::setIgnoresMouseEvents(bool ignores)
{
    m_window->setFlag(Qt::WindowTransparentForInput, ignores);
    flushWindowSystem();
}

void X11StatusPanel::setFrameOrigin(QPointF origin)
{
    m_window->setPosition(origin.toPoint());
    flushWindowSystem();
}

void X11StatusPanel::setOutline(const QRectF &capsule)
{
    m_outline = capsule;
    applyOutline();
    flushWindowSystem();
}

void X11StatusPanel::orderFrontRegardless()
{
    m_window->create(); // a mask set before the window exists would be lost
    applyOutline();
    m_window->show();
    m_window->raise();
    flushWindowSystem();
}

void X11StatusPanel::orderOut()
{
    m_window->hide();
    flushWindowSystem();
}

bool X11StatusPanel::isComposited()
{
    auto *const c = m_connection.xcb();
    const auto manager = m_connection.atom("_NET_WM_CM_S" + QByteArray::number(m_connection.screenNumber()));
    const XcbPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, manager), nullptr));
    return reply && reply->owner != noWindow;
}

void X11StatusPanel::applyOutline()
{
    QRegion mask;
    if (!m_outline.isEmpty() && !isComposited()) {
        const auto radius = std::min(m_outline.width(), m_outline.height()) / 2;
        QPainterPath capsule;
        capsule.addRoundedRect(m_outline, radius, radius);
        mask = QRegion(capsule.toFillPolygon().toPolygon());
    }
    m_window->setMask(mask);
}
