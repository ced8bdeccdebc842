// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11KeyMonitors.h"

#include "platform/x11/keys/X11Keys.h"

#include <QPointer>
#include <linux/input-event-codes.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

struct ModifierKey {
    uint16_t evdevCode;
    uint32_t flags;
};

constexpr std::array modifierKeys{
    ModifierKey{KEY_LEFTCTRL, EventFlag::control | EventFlag::leftControl},
    ModifierKey{KEY_RIGHTCTRL, EventFlag::control | EventFlag::rightControl},
    ModifierKey{KEY_LEFTSHIFT, EventFlag::shift | EventFlag::leftShift},
    ModifierKey{KEY_RIGHTSHIFT, EventFlag::shift | EventFlag::rightShift},
    ModifierKey{KEY_LEFTALT, EventFlag::option | EventFlag::leftOption},
    ModifierKey{KEY_RIGHTALT, EventFlag::option | EventFlag::rightOption},
    ModifierKey{KEY_LEFTMETA, EventFlag::command | EventFlag::leftCommand},
    ModifierKey{KEY_RIGHTMETA, EventFlag::command | EventFlag::rightCommand},
};

bool isModifier(uint16_t evdevCode)
{
    return evdevCode == KEY_CAPSLOCK ||
           std::ranges::find(modifierKeys, evdevCode, &ModifierKey::evdevCode) != modifierKeys.end();
}

uint32_t flagsOf(const std::bitset<256> &held)
{
    uint32_t flags = 0;
    for (const auto &key : modifierKeys) {
        flags |= held[key.evdevCode + X11Keys::evdevOffset] ? key.flags : 0;
    }
    return flags;
}

} // namespace

class X11KeyMonitors::Monitor final : public KeyMonitor {
public:
    Monitor(X11KeyMonitors &monitors, Id id) : m_monitors(&monitors), m_id(id) {}
    ~Monitor() override
    {
        if (m_monitors) {
            m_monitors->remove(m_id);
        }
    }

private:
    QPointer<X11KeyMonitors> m_monitors;
    Id m_id;
};

X11KeyMonitors::X11KeyMonitors(X11Connection &connection, X11Keymap &keymap, std::function<bool()> hasFocus)
    : X11Listener(connection), m_connection(connection), m_keymap(keymap), m_hasFocus(std::move(hasFocus))
{
}

std::unique_ptr<KeyMonitor> X11KeyMonitors::addGlobal(Handler handler)
{
    return add(false, std::move(handler));
}

std::unique_ptr<KeyMonitor> X11KeyMonitors::addLocal(Handler handler)
{
    return add(true, std::move(handler));
}

std::unique_ptr<KeyMonitor> X11KeyMonitors::add(bool local, Handler handler)
{
    if (!m_connection.extensions().rawKeys) {
        return nullptr;
    }
    if (m_monitors.empty()) {
        m_held = X11Keys::heldKeys(m_connection.xcb());
        m_capsLocked = isCapsLocked();
        if (!select(XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE)) {
            return nullptr;
        }
    }
    m_monitors.emplace(++m_lastId, Entry{local, std::move(handler)});
    return std::make_unique<Monitor>(*this, m_lastId);
}

void X11KeyMonitors::remove(Id id)
{
    m_monitors.erase(id);
    if (m_monitors.empty()) {
        select(0);
    }
}

/// In force when it returns.
bool X11KeyMonitors::select(uint32_t events)
{
    struct {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } const selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, events};
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_generic_error_t> error(
        xcb_request_check(c, xcb_input_xi_select_events_checked(c, m_connection.root(), 1, &selection.head)));
    return !error && xcb_connection_has_error(c) == 0;
}

void X11KeyMonitors::handle(const xcb_generic_event_t &event)
{
    if (eventType(event) != XCB_GE_GENERIC || m_monitors.empty()) {
        return;
    }
    const auto &generic = eventAs<xcb_ge_generic_event_t>(event);
    const bool down = generic.event_type == XCB_INPUT_RAW_KEY_PRESS;
    if (generic.extension != xcb_get_extension_data(m_connection.xcb(), &xcb_input_id)->major_opcode ||
        (!down && generic.event_type != XCB_INPUT_RAW_KEY_RELEASE)) {
        return;
    }
    const auto code = eventAs<xcb_input_raw_key_press_event_t>(event).detail;
    if (code < m_held.size()) {
        change(uint8_t(code), down);
    }
}

void X11KeyMonitors::change(uint8_t code, bool down)
{
    if (code < X11Keys::evdevOffset || m_held[code] == down) {
        return; // auto-repeat, or the release of a key whose press nobody saw
    }
    m_held[code] = down;
    const auto evdevCode = uint16_t(code - X11Keys::evdevOffset);
    const auto keyCode = KeyCode::fromEvdev(evdevCode);
    const bool modifier = isModifier(evdevCode);
    if (!keyCode || (!modifier && !down)) {
        return;
    }
    if (evdevCode == KEY_CAPSLOCK) {
        m_capsLocked = isCapsLocked();
    }
    KeyEvent event{.type = modifier ? KeyEvent::Type::FlagsChanged : KeyEvent::Type::KeyDown,
                   .keyCode = *keyCode,
                   .modifierFlags = flagsOf(m_held) | (m_capsLocked ? EventFlag::capsLock : 0)};
    if (!modifier) {
        event.charactersIgnoringModifiers = m_keymap.text(code);
    }
    report(event);
}

void X11KeyMonitors::report(const KeyEvent &event)
{
    const bool local = m_hasFocus();
    std::vector<Id> ids; // a handler may add and remove monitors
    for (const auto &[id, entry] : m_monitors) {
        if (entry.local == local) {
            ids.push_back(id);
        }
    }
    for (const auto id : ids) {
        const auto found = m_monitors.find(id);
        if (found != m_monitors.end()) {
            const auto handler = found->second.handler;
            handler(event);
        }
    }
}

bool X11KeyMonitors::isCapsLocked() const
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(c, xcb_xkb_get_state(c, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state && (state->lockedMods & XCB_MOD_MASK_LOCK) != 0;
}
