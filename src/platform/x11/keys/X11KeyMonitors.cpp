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

/// Keys that are told from their twins, whatever the layout makes of them.
struct SidedKey {
    uint16_t evdevCode;
    uint32_t flag;
};

constexpr std::array sidedKeys{
    SidedKey{KEY_LEFTCTRL, EventFlag::leftControl}, SidedKey{KEY_RIGHTCTRL, EventFlag::rightControl},
    SidedKey{KEY_LEFTSHIFT, EventFlag::leftShift},  SidedKey{KEY_RIGHTSHIFT, EventFlag::rightShift},
    SidedKey{KEY_LEFTALT, EventFlag::leftOption},   SidedKey{KEY_RIGHTALT, EventFlag::rightOption},
    SidedKey{KEY_LEFTMETA, EventFlag::leftCommand}, SidedKey{KEY_RIGHTMETA, EventFlag::rightCommand},
};

constexpr std::pair<uint16_t, uint32_t> sharedFlags[] = {{XCB_MOD_MASK_SHIFT, EventFlag::shift},
                                                         {XCB_MOD_MASK_CONTROL, EventFlag::control},
                                                         {XCB_MOD_MASK_1, EventFlag::option},
                                                         {XCB_MOD_MASK_4, EventFlag::command}};

// What a hot key may ask for; with another modifier down, such as Alt Gr, the key types something.
constexpr uint16_t hotKeyModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

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
    std::bitset<256> alone;
    alone.set(code);
    const bool sided =
        std::ranges::find(sidedKeys, code - X11Keys::evdevOffset, &SidedKey::evdevCode) != sidedKeys.end();
    const bool modifier = sided || m_keymap.modifiersOf(alone) != 0;
    if (!modifier && !down) {
        return;
    }
    if (m_keymap.types(code, XKB_KEY_Caps_Lock)) {
        m_capsLocked = isCapsLocked();
    }
    KeyEvent event{.type = modifier ? KeyEvent::Type::FlagsChanged : KeyEvent::Type::KeyDown,
                   .keyCode = keyCodeOf(code),
                   .modifierFlags = flags()};
    if (!modifier) {
        const uint16_t others = m_keymap.modifiersOf(m_held) & uint16_t(~hotKeyModifiers);
        event.charactersIgnoringModifiers = m_keymap.text(code);
        event.canBeHotKey = event.keyCode != KeyCode::unknown && (others & ~m_keymap.lockModifiers()) == 0;
    }
    report(event);
}

uint16_t X11KeyMonitors::keyCodeOf(uint8_t code)
{
    if (m_keymap.types(code, XKB_KEY_Escape)) {
        return KeyCode::escape;
    }
    const auto keyCode = KeyCode::fromEvdev(uint16_t(code - X11Keys::evdevOffset)).value_or(KeyCode::unknown);
    return keyCode == KeyCode::escape ? KeyCode::unknown : keyCode;
}

uint32_t X11KeyMonitors::flags()
{
    uint32_t flags = m_capsLocked ? EventFlag::capsLock : 0;
    for (const auto &key : sidedKeys) {
        flags |= m_held[key.evdevCode + X11Keys::evdevOffset] ? key.flag : 0;
    }
    const auto modifiers = m_keymap.modifiersOf(m_held);
    for (const auto &[mask, flag] : sharedFlags) {
        flags |= (modifiers & mask) != 0 ? flag : 0;
    }
    return flags;
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

bool X11KeyMonitors::canSee(uint16_t keyCode) const
{
    return m_connection.extensions().rawKeys && X11Keys::fromKeyCode(keyCode).has_value();
}

bool X11KeyMonitors::isCapsLocked() const
{
    auto *const c = m_connection.xcb();
    const XcbPtr<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(c, xcb_xkb_get_state(c, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state && (state->lockedMods & XCB_MOD_MASK_LOCK) != 0;
}
