// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11Focus.h"

#include <algorithm>

namespace {

XcbPtr<xcb_get_property_reply_t> property(xcb_connection_t *c, xcb_window_t window, xcb_atom_t name, xcb_atom_t type)
{
    constexpr uint32_t limit = 256; // in units of four bytes: a window class, a few atoms or one window
    XcbPtr<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(c, xcb_get_property(c, 0, window, name, type, 0, limit), nullptr));
    return reply && reply->type == type ? std::move(reply) : nullptr;
}

} // namespace

bool X11Focus::isSomewhere()
{
    const auto focus = focusedWindow();
    if (focus == noWindow) {
        return false;
    }
    if (const auto found = program(focus)) {
        return !isPartOfTheDesktop(found->window);
    }
    // Some toolkits put the focus on a window outside their top-level one.
    return !hasWindowManager() || activeWindow() != noWindow;
}

bool X11Focus::isIn(const QStringList &windowClasses)
{
    const auto found = focusedProgram();
    return found && std::ranges::any_of(found->classes, [&](const QString &name) {
               return windowClasses.contains(name, Qt::CaseInsensitive);
           });
}

std::optional<X11Focus::Program> X11Focus::focusedProgram()
{
    auto found = program(focusedWindow());
    return found ? found : program(activeWindow());
}

xcb_window_t X11Focus::focusedWindow()
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_get_input_focus_reply_t> focus(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    if (!focus || focus->focus == XCB_INPUT_FOCUS_NONE) {
        return noWindow;
    }
    if (focus->focus != XCB_INPUT_FOCUS_POINTER_ROOT && focus->focus != m_connection.root()) {
        return focus->focus;
    }
    // Keys go to the window under the pointer.
    const XcbPtr<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(c, xcb_query_pointer(c, m_connection.root()), nullptr));
    return pointer ? pointer->child : noWindow;
}

/// The class stands on the top-level window, the focus may be on one inside it.
std::optional<X11Focus::Program> X11Focus::program(xcb_window_t window)
{
    auto *const c = m_connection.xcb();
    while (window != noWindow && window != m_connection.root()) {
        if (const auto reply = property(c, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING)) {
            const auto text = QString::fromLatin1(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                                  xcb_get_property_value_length(reply.get()));
            return Program{window, text.split(QChar(u'\0'), Qt::SkipEmptyParts)}; // instance, then class
        }
        const XcbPtr<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(c, xcb_query_tree(c, window), nullptr));
        window = tree ? tree->parent : noWindow;
    }
    return std::nullopt;
}

bool X11Focus::isPartOfTheDesktop(xcb_window_t window)
{
    const auto reply = property(m_connection.xcb(), window, m_connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM);
    if (!reply) {
        return false;
    }
    const auto *const first = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    return std::any_of(first, first + reply->value_len, [this](xcb_atom_t type) {
        return type == m_connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP") ||
               type == m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    });
}

bool X11Focus::hasWindowManager()
{
    return windowProperty("_NET_SUPPORTING_WM_CHECK") != noWindow;
}

xcb_window_t X11Focus::activeWindow()
{
    return windowProperty("_NET_ACTIVE_WINDOW");
}

xcb_window_t X11Focus::windowProperty(const QByteArray &name)
{
    const auto reply = property(m_connection.xcb(), m_connection.root(), m_connection.atom(name), XCB_ATOM_WINDOW);
    return reply && reply->value_len > 0 ? *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()))
                                         : noWindow;
}
