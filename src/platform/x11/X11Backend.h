// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "platform/KeyEvents.h"
#include "platform/KeyMonitors.h"
#include "platform/Pasteboard.h"
#include "platform/Screens.h"
#include "platform/StatusPanel.h"

#include <QStringList>

#include <functional>
#include <memory>

/// Everything the program needs of an X11 desktop, on the display of $DISPLAY. Main thread only. Hot keys, monitors and
/// panels are destroyed before it.
class X11Backend {
public:
    /// Null where it can't work; `whyNot` then gets a sentence for the log. `terminalClasses`: window classes in which
    /// Ctrl+Shift+V pastes, by default TerminalClasses::defaults(). Needs a QGuiApplication.
    static std::unique_ptr<X11Backend> create(Clock &clock, const QStringList &terminalClasses, QString *whyNot);

    /// Whether the display of $DISPLAY answers. May be called before there is a QGuiApplication.
    static bool canConnect();

    X11Backend(const X11Backend &) = delete;
    X11Backend &operator=(const X11Backend &) = delete;
    ~X11Backend();

    HotKeys &hotKeys();
    KeyMonitors &keyMonitors();
    KeyEvents &keyEvents();
    Pasteboard &pasteboard();
    StatusPanels &statusPanels();
    Screens &screens();
    Accessibility &accessibility();
    Application &application();

    /// Called once, from the event loop, when the X server is gone.
    void setClosedHandler(std::function<void()> handler);

private:
    struct Parts;

    explicit X11Backend(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
