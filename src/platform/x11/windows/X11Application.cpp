// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11Application.h"

#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/windows/flushWindowSystem.h"

#include <QGuiApplication>
#include <QWindow>

X11Application::X11Application(X11Connection &connection) : m_connection(connection)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (m_onActivation) {
            m_onActivation(state == Qt::ApplicationActive);
        }
    });
}

void X11Application::bringToFront(QWindow &window)
{
    if (window.windowStates().testFlag(Qt::WindowMinimized)) {
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    }
    window.show();
    window.raise();
    window.requestActivate(); // all there is without a window manager
    flushWindowSystem();

    // Qt asks for the focus as an application with the time of its last key press, and the program that has the user's
    // attention now was used later. The user asked through a hot key or the tray, which counts as a pager's request.
    constexpr uint32_t fromPager = 2;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = m_connection.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = fromPager;
    message.data.data32[1] = m_connection.serverTime();
    xcb_send_event(m_connection.xcb(), 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    m_connection.flush();
}

void X11Application::hide() {}

void X11Application::terminate()
{
    QMetaObject::invokeMethod(qGuiApp, &QCoreApplication::quit, Qt::QueuedConnection);
}
