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

} // namespace

X11KeyEvents::X11KeyEvents(X11Connection &connection, X11Keymap &keymap, X11HotKeys &hotKeys,
                           const QStringList &terminalClasses)
    : m_connection(connection),
      m_keymap(keymap),
      m_hotKeys(hotKeys),
      m_focus(connection),
      m_terminalClasses(terminalClasses)
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

KeyEvents::Obstacle X11KeyEvents::obstacle(uint16_t keyCode)
{
    m_keymap.refresh();
    const auto key = keyCode == KeyCode::v ? vKey() : X11Keys::fromKeyCode(keyCode);
    if (m_hotKeys.isHeld()) {
        return Obstacle::OwnHotKey;
    }
    if (key && X11Keys::heldKeys(m_connection.xcb())[*key]) {
        return Obstacle::HeldKey;
    }
    if (!m_focus.isSomewhere()) {
        return Obstacle::NoFocus;
    }
    return isKeyboardGrabbed() ? Obstacle::OtherGrab : Obstacle::None;
}

/// There is no question for it: whoever may grab the keyboard finds it free. The program in front is told of the grab
/// as it is of each hot key's.
bool X11KeyEvents::isKeyboardGrabbed()
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
        c, xcb_grab_keyboard(c, 0, m_connection.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
        return true;
    }
    xcb_ungrab_keyboard(c, XCB_CURRENT_TIME);
    return false;
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

uint8_t X11KeyEvents::vKey()
{
    // Where no layout of the user types "v", toolkits take the key where "v" stands on a Latin keyboard.
    return m_keymap.keyFor(XKB_KEY_v).value_or(code(KEY_V));
}

X11KeyEvents::Chord X11KeyEvents::pasteChord()
{
    Chord chord{m_keymap.keyForModifier(XCB_MOD_MASK_CONTROL).value_or(code(KEY_LEFTCTRL))};
    if (m_focus.isIn(m_terminalClasses)) {
        chord.push_back(m_keymap.keyForModifier(XCB_MOD_MASK_SHIFT).value_or(code(KEY_LEFTSHIFT)));
    }
    chord.push_back(vKey());
    return chord;
}
