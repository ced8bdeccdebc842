// SPDX-License-Identifier: MIT
#include "platform/x11/X11Backend.h"

#include "platform/Finding.h"
#include "platform/x11/clipboard/X11Pasteboard.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11Accessibility.h"
#include "platform/x11/keys/X11HotKeys.h"
#include "platform/x11/keys/X11KeyEvents.h"
#include "platform/x11/keys/X11KeyMonitors.h"
#include "platform/x11/keys/X11Keymap.h"
#include "platform/x11/windows/QtScreens.h"
#include "platform/x11/windows/X11Application.h"
#include "platform/x11/windows/X11StatusPanels.h"

#include <QGuiApplication>

struct X11Backend::Parts {
    Parts(std::unique_ptr<X11Connection> opened, std::unique_ptr<X11Keymap> layout,
          std::unique_ptr<X11Pasteboard> clipboard, const QStringList &terminalClasses)
        : connection(std::move(opened)),
          keymap(std::move(layout)),
          pasteboard(std::move(clipboard)),
          hotKeys(*connection, *keymap),
          keyMonitors(*connection, *keymap, [] { return QGuiApplication::focusWindow() != nullptr; }),
          keyEvents(*connection, *keymap, hotKeys, terminalClasses),
          statusPanels(*connection),
          accessibility(*connection),
          application(*connection)
    {
    }

    std::unique_ptr<X11Connection> connection;
    std::unique_ptr<X11Keymap> keymap;
    std::unique_ptr<X11Pasteboard> pasteboard;
    X11HotKeys hotKeys;
    X11KeyMonitors keyMonitors;
    X11KeyEvents keyEvents;
    X11StatusPanels statusPanels;
    X11Accessibility accessibility;
    X11Application application;
    QtScreens screens;
};

std::unique_ptr<X11Backend> X11Backend::create(Clock &clock, const QStringList &terminalClasses, QString *whyNot)
{
    auto connection = X11Connection::create();
    if (!connection) {
        *whyNot = Finding::tr("there is no X server at $DISPLAY");
        return nullptr;
    }
    auto keymap = X11Keymap::create(*connection);
    if (!keymap) {
        *whyNot = Finding::tr("the X server has no keyboard extension (XKB)");
        return nullptr;
    }
    auto pasteboard = X11Pasteboard::create(clock);
    if (!pasteboard) {
        *whyNot = Finding::tr("the X server has no XFIXES extension");
        return nullptr;
    }
    return std::unique_ptr<X11Backend>(new X11Backend(
        std::make_unique<Parts>(std::move(connection), std::move(keymap), std::move(pasteboard), terminalClasses)));
}

X11Backend::X11Backend(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}

bool X11Backend::canConnect()
{
    xcb_connection_t *xcb = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(xcb) == 0;
    xcb_disconnect(xcb);
    return answers;
}

X11Backend::~X11Backend() = default;

HotKeys &X11Backend::hotKeys()
{
    return m_parts->hotKeys;
}

KeyMonitors &X11Backend::keyMonitors()
{
    return m_parts->keyMonitors;
}

KeyEvents &X11Backend::keyEvents()
{
    return m_parts->keyEvents;
}

Pasteboard &X11Backend::pasteboard()
{
    return *m_parts->pasteboard;
}

StatusPanels &X11Backend::statusPanels()
{
    return m_parts->statusPanels;
}

Screens &X11Backend::screens()
{
    return m_parts->screens;
}

Accessibility &X11Backend::accessibility()
{
    return m_parts->accessibility;
}

Application &X11Backend::application()
{
    return m_parts->application;
}

void X11Backend::setClosedHandler(std::function<void()> handler)
{
    QObject::connect(m_parts->connection.get(), &X11Connection::closed, std::move(handler));
}
