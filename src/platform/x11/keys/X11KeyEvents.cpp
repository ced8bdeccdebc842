// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11KeyEvents.h"

#include "platform/x11/keys/X11Keys.h"

#include <linux/input-event-codes.h>
#include <xcb/xtest.h>

#include <algorithm>

namespace {

constexpr uint32_t chordFlags = EventFlag::shift | EventFlag::control | EventFlag::option | EventFlag::command;

constexpr uint8_t code(int evdevCode)
{
    return uint8_t(evdevCode + X11Keys::evdevOffset);
}

XcbPtr<xcb_get_property_reply_t> property(xcb_connection_t *c, xcb_window_t window, xcb_atom_t name, xcb_atom_t type)
{
    constexpr uint32_t limit = 256; // in units of four bytes: a window class or one window
    return XcbPtr<xcb_get_property_reply_t>(
        xcb_get_property_reply(c, xcb_get_property(c, 0, window, name, type, 0, limit), nullptr));
}

} // namespace

X11KeyEvents::X11KeyEvents(X11Connection &connection, X11Keymap &keymap, const QStringList &terminalClasses)
    : m_connection(connection), m_keymap(keymap), m_terminalClasses(terminalClasses)
{
}

uint32_t X11KeyEvents::modifierFlags() const
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(c, xcb_xkb_get_state(c, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    const unsigned mods = state ? unsigned(state->baseMods | state->latchedMods) : 0U;
    uint32_t flags = 0;
    flags |= (mods & XCB_MOD_MASK_SHIFT) != 0 ? EventFlag::shift : 0;
    flags |= (mods & XCB_MOD_MASK_CONTROL) != 0 ? EventFlag::control : 0;
    flags |= (mods & (XCB_MOD_MASK_1 | XCB_MOD_MASK_5)) != 0 ? EventFlag::option : 0; // Mod5 is Alt Gr
    flags |= (mods & XCB_MOD_MASK_4) != 0 ? EventFlag::command : 0;
    return flags;
}

bool X11KeyEvents::post(uint16_t keyCode, bool down, uint32_t flags)
{
    if (!m_connection.extensions().test) {
        return false;
    }
    const bool posted = down ? press(keyCode, flags & chordFlags) : release(keyCode);
    m_connection.flush();
    return posted && xcb_connection_has_error(m_connection.xcb()) == 0;
}

bool X11KeyEvents::press(uint16_t keyCode, uint32_t flags)
{
    m_keymap.refresh();
    Chord chord;
    if (keyCode == KeyCode::v && flags == EventFlag::command) {
        chord = pasteChord();
    } else if (const auto key = X11Keys::fromKeyCode(keyCode)) {
        const std::pair<uint32_t, uint8_t> modifiers[] = {{EventFlag::control, code(KEY_LEFTCTRL)},
                                                          {EventFlag::option, code(KEY_LEFTALT)},
                                                          {EventFlag::shift, code(KEY_LEFTSHIFT)},
                                                          {EventFlag::command, code(KEY_LEFTMETA)}};
        for (const auto &[flag, modifier] : modifiers) {
            if ((flags & flag) != 0) {
                chord.push_back(modifier);
            }
        }
        chord.push_back(*key);
    } else {
        return false;
    }
    release(keyCode); // of an earlier down without an up
    releaseHeldModifiers();
    for (const auto key : chord) {
        fake(XCB_KEY_PRESS, key);
    }
    m_pressed.emplace(keyCode, std::move(chord));
    return true;
}

bool X11KeyEvents::release(uint16_t keyCode)
{
    const auto pressed = m_pressed.extract(keyCode);
    if (!pressed) {
        return false;
    }
    const auto &chord = pressed.mapped();
    std::for_each(chord.rbegin(), chord.rend(), [this](uint8_t key) { fake(XCB_KEY_RELEASE, key); });
    return true;
}

void X11KeyEvents::releaseHeldModifiers()
{
    const auto held = X11Keys::heldKeys(m_connection.xcb());
    for (const auto key : m_keymap.modifierKeys()) {
        if (held[key]) {
            fake(XCB_KEY_RELEASE, key);
        }
    }
}

void X11KeyEvents::fake(uint8_t type, uint8_t code)
{
    xcb_test_fake_input(m_connection.xcb(), type, code, XCB_CURRENT_TIME, noWindow, 0, 0, 0);
}

X11KeyEvents::Chord X11KeyEvents::pasteChord()
{
    // Where no layout of the user types "v", toolkits take the key where "v" stands on a Latin keyboard.
    const auto v = m_keymap.keyFor(XKB_KEY_v).value_or(code(KEY_V));
    if (isTerminalFocused()) {
        return {code(KEY_LEFTCTRL), code(KEY_LEFTSHIFT), v};
    }
    return {code(KEY_LEFTCTRL), v};
}

bool X11KeyEvents::isTerminalFocused()
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_get_input_focus_reply_t> focus(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    // The class stands on the top-level window, the focus may be on one inside it.
    for (auto window = focus ? focus->focus : noWindow; window > XCB_INPUT_FOCUS_POINTER_ROOT;) {
        if (const auto terminal = isTerminal(window)) {
            return *terminal;
        }
        const XcbPtr<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(c, xcb_query_tree(c, window), nullptr));
        window = tree ? tree->parent : noWindow;
    }
    return isTerminal(activeWindow()).value_or(false);
}

/// Nothing when the window has no class.
std::optional<bool> X11KeyEvents::isTerminal(xcb_window_t window)
{
    const auto reply = property(m_connection.xcb(), window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
    if (!reply || reply->type != XCB_ATOM_STRING) {
        return std::nullopt;
    }
    const auto text = QString::fromLatin1(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                          xcb_get_property_value_length(reply.get()));
    const auto names = text.split(QChar(u'\0'), Qt::SkipEmptyParts); // instance, then class
    return std::ranges::any_of(
        names, [this](const QString &name) { return m_terminalClasses.contains(name, Qt::CaseInsensitive); });
}

/// What the window manager calls active: some toolkits put the focus on a window outside their top-level one.
xcb_window_t X11KeyEvents::activeWindow()
{
    const auto reply =
        property(m_connection.xcb(), m_connection.root(), m_connection.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW);
    if (!reply || xcb_get_property_value_length(reply.get()) < int(sizeof(xcb_window_t))) {
        return noWindow;
    }
    return *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
}
