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
    const Finding noRawKeys = dictation == DictationShortcutKind::SingleKey
                                  ? Finding{Finding::tr("Raw keys"), Level::Problem,
                                            Finding::tr("no XInput 2.2: the dictation shortcut is a single key"),
                                            Finding::tr("choose a key combination in the settings")}
                                  : Finding{Finding::tr("Raw keys"), Level::Note,
                                            Finding::tr("no XInput 2.2: a single key can't be a shortcut"),
                                            Finding::tr("use a key combination")};
    return {has.xkb ? Finding{Finding::tr("Keyboard"), Level::Good, u"XKB"_s}
                    : Finding{Finding::tr("Keyboard"), Level::Problem, Finding::tr("no XKB"),
                              Finding::tr("enable the X server's XKEYBOARD extension")},
            has.rawKeys ? Finding{Finding::tr("Raw keys"), Level::Good, u"XInput 2.2"_s} : noRawKeys,
            has.test
                ? Finding{Finding::tr("Key posting"), Level::Good, u"XTEST"_s}
                : Finding{Finding::tr("Key posting"), Level::Note, Finding::tr("no XTEST: text is copied, not pasted"),
                          Finding::tr("paste with Ctrl+V, or enable the X server's XTEST extension")},
            has.xfixes ? Finding{Finding::tr("Clipboard"), Level::Good, u"XFIXES"_s}
                       : Finding{Finding::tr("Clipboard"), Level::Problem, Finding::tr("no XFIXES"),
                                 Finding::tr("enable the X server's XFIXES extension")}};
}

X11Examination examineX11(DictationShortcutKind dictation)
{
    const auto connection = X11Connection::create();
    if (!connection) {
        return {{{Finding::tr("Display server"), Level::Problem, Finding::tr("there is no X server at $DISPLAY"),
                  Finding::tr("log in to an X11 session")}}};
    }
    QList<Finding> findings{{Finding::tr("Display server"), Level::Good,
                             Finding::tr("X11 (%1), backend x11").arg(serverName(*connection))}};
    findings.append(examineX11Extensions(connection->extensions(), dictation));
    findings.append(hasWindowManager(*connection)
                        ? Finding{Finding::tr("Window manager"), Level::Good, Finding::tr("there")}
                        : Finding{Finding::tr("Window manager"), Level::Note,
                                  Finding::tr("none: windows may not come to the front"),
                                  Finding::tr("start a window manager")});
    findings.append(
        owner(*connection, "_NET_WM_CM_S") != noWindow
            ? Finding{Finding::tr("Compositor"), Level::Good, Finding::tr("there")}
            : Finding{Finding::tr("Compositor"), Level::Good, Finding::tr("none: the status panel has hard edges")});
    const bool hasXEmbedTray = owner(*connection, "_NET_SYSTEM_TRAY_S") != noWindow;
    if (hasXEmbedTray) {
        findings.append({Finding::tr("XEmbed tray"), Level::Good, Finding::tr("there")});
    }
    if (!QStandardPaths::findExecutable(u"xterm"_s).isEmpty() && !xtermPastes(*connection)) {
        findings.append(
            {u"xterm"_s, Level::Note, Finding::tr("Ctrl+Shift+V does not paste in it"),
             Finding::tr("add to ~/.Xresources and load it with xrdb -merge: %1")
                 .arg(u"XTerm*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)"_s)});
    }
    return {findings, hasXEmbedTray};
}
