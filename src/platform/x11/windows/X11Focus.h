// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QStringList>

#include <optional>

/// The window that gets the keys. Each call asks the server.
class X11Focus {
public:
    explicit X11Focus(X11Connection &connection) : m_connection(connection) {}

    /// Some program has the focus. A window manager without a window to give it to keeps it on a window of its own; the
    /// desktop's background and its panels take keys, too, but no text.
    bool isSomewhere();

    /// The program in front has one of these window classes, in any case.
    bool isIn(const QStringList &windowClasses);

private:
    struct Program {
        xcb_window_t window;
        QStringList classes;
    };

    xcb_window_t focusedWindow();
    std::optional<Program> program(xcb_window_t window);
    std::optional<Program> focusedProgram();
    bool isPartOfTheDesktop(xcb_window_t window);
    bool hasWindowManager();
    xcb_window_t activeWindow();
    xcb_window_t windowProperty(const QByteArray &name);

    X11Connection &m_connection;
};
