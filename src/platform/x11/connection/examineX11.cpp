// SPDX-License-Identifier: MIT
#include "platform/x11/connection/examineX11.h"

#include "platform/x11/connection/X11Connection.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

using Level = Finding::Level;

xcb_window_t owner(X11Connection &connection, const QByteArray &selection)
{
    auto *const c = connection.xcb();
    const XcbPtr<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        c, xcb_get_selection_owner(c, connection.atom(selection + QByteArray::number(connection.screenNumber()))),
        nullptr));
    return reply ? reply->owner : noWindow;
}

/// xterm pastes on Ctrl+Shift+V only where its resources say so.
bool xtermPastes(X11Connection &connection)
{
    constexpr uint32_t limit = 0x10000; // in units of four bytes
    auto *const c = connection.xcb();
    const XcbPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, connection.root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, limit), nullptr));
    const auto resources = reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                              xcb_get_property_value_length(reply.get()))
                                 : QByteArray();
    return resources.contains("insert-selection(CLIPBOARD");
}

bool hasWindowManager(X11Connection &connection)
{
    auto *const c = connection.xcb();
    const XcbPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c,
        xcb_get_property(c, 0, connection.root(), connection.atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    return reply && reply->type == XCB_ATOM_WINDOW;
}

QString serverName(const X11Connection &connection)
{
    const xcb_setup_t *setup = xcb_get_setup(connection.xcb());
    return QString::fromLatin1(xcb_setup_vendor(setup), xcb_setup_vendor_length(setup));
}

} // namespace

QList<Finding> examineX11Extensions(const X11Extensions &has, DictationShortcutKind dictation)
{
    const Finding noRawKeys =
        dictation == DictationShortcutKind::SingleKey
            ? Finding{u"Raw keys"_s, Level::Problem, u"no XInput 2.2: the dictation shortcut is a single key"_s,
                      u"choose a key combination in the settings"_s}
            : Finding{u"Raw keys"_s, Level::Note, u"no XInput 2.2: a single key can't be a shortcut"_s,
                      u"use a key combination"_s};
    return {has.xkb
                ? Finding{u"Keyboard"_s, Level::Good, u"XKB"_s}
                : Finding{u"Keyboard"_s, Level::Problem, u"no XKB"_s, u"enable the X server's XKEYBOARD extension"_s},
            has.rawKeys ? Finding{u"Raw keys"_s, Level::Good, u"XInput 2.2"_s} : noRawKeys,
            has.test ? Finding{u"Key posting"_s, Level::Good, u"XTEST"_s}
                     : Finding{u"Key posting"_s, Level::Note, u"no XTEST: text is copied, not pasted"_s,
                               u"paste with Ctrl+V, or enable the X server's XTEST extension"_s},
            has.xfixes
                ? Finding{u"Clipboard"_s, Level::Good, u"XFIXES"_s}
                : Finding{u"Clipboard"_s, Level::Problem, u"no XFIXES"_s, u"enable the X server's XFIXES extension"_s}};
}

X11Examination examineX11(DictationShortcutKind dictation)
{
    const auto connection = X11Connection::create();
    if (!connection) {
        return {{{u"Display server"_s, Level::Problem, u"there is no X server at $DISPLAY"_s,
                  u"log in to an X11 session"_s}}};
    }
    QList<Finding> findings{
        {u"Display server"_s, Level::Good, u"X11 (%1), backend x11"_s.arg(serverName(*connection))}};
    findings.append(examineX11Extensions(connection->extensions(), dictation));
    findings.append(hasWindowManager(*connection)
                        ? Finding{u"Window manager"_s, Level::Good, u"there"_s}
                        : Finding{u"Window manager"_s, Level::Note, u"none: windows may not come to the front"_s,
                                  u"start a window manager"_s});
    findings.append(owner(*connection, "_NET_WM_CM_S") != noWindow
                        ? Finding{u"Compositor"_s, Level::Good, u"there"_s}
                        : Finding{u"Compositor"_s, Level::Good, u"none: the status panel has hard edges"_s});
    const bool hasXEmbedTray = owner(*connection, "_NET_SYSTEM_TRAY_S") != noWindow;
    if (hasXEmbedTray) {
        findings.append({u"XEmbed tray"_s, Level::Good, u"there"_s});
    }
    if (!QStandardPaths::findExecutable(u"xterm"_s).isEmpty() && !xtermPastes(*connection)) {
        findings.append({u"xterm"_s, Level::Note, u"Ctrl+Shift+V does not paste in it"_s,
                         u"add to ~/.Xresources and load it with xrdb -merge: "
                         "XTerm*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)"_s});
    }
    return {findings, hasXEmbedTray};
}
