// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11HotKeys.h"

#include "platform/x11/keys/X11Keys.h"

#include <QPointer>

#include <set>

namespace {

constexpr uint16_t allModifiers = 0xFF;

uint16_t toModifierMask(uint32_t modifiers)
{
    const std::pair<uint32_t, xcb_mod_mask_t> masks[] = {{HotKeyModifier::shift, XCB_MOD_MASK_SHIFT},
                                                         {HotKeyModifier::control, XCB_MOD_MASK_CONTROL},
                                                         {HotKeyModifier::option, XCB_MOD_MASK_1},
                                                         {HotKeyModifier::command, XCB_MOD_MASK_4}};
    uint16_t result = 0;
    for (const auto &[modifier, mask] : masks) {
        result |= (modifiers & modifier) != 0 ? uint16_t(mask) : uint16_t(0);
    }
    return result;
}

/// Every combination of the given modifiers, none included.
std::vector<uint16_t> combinations(uint16_t modifiers)
{
    std::vector<uint16_t> all;
    uint16_t subset = modifiers;
    do {
        all.push_back(subset);
        subset = uint16_t(subset - 1) & modifiers;
    } while (subset != modifiers);
    return all;
}

} // namespace

class X11HotKeys::Registration final : public HotKeyRegistration {
public:
    Registration(X11HotKeys &hotKeys, Id id) : m_hotKeys(&hotKeys), m_id(id) {}
    ~Registration() override
    {
        if (m_hotKeys) {
            m_hotKeys->remove(m_id);
        }
    }

private:
    QPointer<X11HotKeys> m_hotKeys;
    Id m_id;
};

X11HotKeys::X11HotKeys(X11Connection &connection, X11Keymap &keymap)
    : X11Listener(connection), m_connection(connection), m_keymap(keymap), m_locks(keymap.lockModifiers())
{
    // Without this, a held key looks like releases and presses.
    xcb_xkb_per_client_flags(connection.xcb(), XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                             XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0);
    connection.flush();
    connect(&keymap, &X11Keymap::changed, this, &X11HotKeys::followKeymap);
}

std::unique_ptr<HotKeyRegistration> X11HotKeys::add(uint32_t keyCode, uint32_t modifiers, Handler handler)
{
    HotKey key{{}, toModifierMask(modifiers), std::move(handler)};
    if (keyCode == KeyCode::escape && key.modifiers == 0) {
        key.codes = escapeKeys();
        key.modifiers = XCB_MOD_MASK_ANY;
    } else if (const auto code = X11Keys::fromKeyCode(keyCode)) {
        key.codes = {*code};
    }
    // The server would let one client grab a key twice.
    const bool taken = std::ranges::any_of(m_hotKeys, [&](const auto &entry) {
        return entry.second.codes == key.codes && entry.second.modifiers == key.modifiers;
    });
    if (key.codes.empty() || taken || !grab(key)) {
        return nullptr;
    }
    awaitRelease(key);
    m_hotKeys.emplace(++m_lastId, std::move(key));
    return std::make_unique<Registration>(*this, m_lastId);
}

std::vector<uint8_t> X11HotKeys::escapeKeys()
{
    std::vector<uint8_t> codes;
    for (unsigned code = X11Keys::evdevOffset; code <= UINT8_MAX; ++code) {
        if (m_keymap.types(uint8_t(code), XKB_KEY_Escape)) {
            codes.push_back(uint8_t(code));
        }
    }
    return codes;
}

bool X11HotKeys::grab(const HotKey &key)
{
    const bool granted = std::ranges::all_of(key.codes, [&](uint8_t code) {
        return key.modifiers == XCB_MOD_MASK_ANY ? grabInAnyState(code) : grab(code, key.modifiers);
    });
    if (!granted || xcb_connection_has_error(m_connection.xcb()) != 0) {
        ungrab(key);
        return false;
    }
    return true;
}

bool X11HotKeys::grab(uint8_t code, uint16_t modifiers)
{
    auto *const c = m_connection.xcb();
    std::vector<xcb_void_cookie_t> requests;
    for (const auto locks : modifiers == XCB_MOD_MASK_ANY ? std::vector<uint16_t>{0} : combinations(m_locks)) {
        requests.push_back(xcb_grab_key_checked(c, 0, m_connection.root(), modifiers | locks, code, XCB_GRAB_MODE_ASYNC,
                                                XCB_GRAB_MODE_ASYNC));
    }
    bool granted = true;
    for (const auto request : requests) {
        const XcbPtr<xcb_generic_error_t> error(xcb_request_check(c, request));
        granted = granted && !error;
    }
    return granted;
}

/// Where another program has the key with some modifiers, as window managers have Alt+Esc, the server refuses to give
/// it away with any; then with all the others.
bool X11HotKeys::grabInAnyState(uint8_t code)
{
    if (grab(code, XCB_MOD_MASK_ANY)) {
        return true;
    }
    for (const auto modifiers : combinations(allModifiers)) {
        xcb_grab_key(m_connection.xcb(), 0, m_connection.root(), modifiers, code, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
    }
    return grab(code, 0);
}

void X11HotKeys::ungrab(const HotKey &key)
{
    for (const auto code : key.codes) {
        for (const auto locks : key.modifiers == XCB_MOD_MASK_ANY ? std::vector<uint16_t>{0} : combinations(m_locks)) {
            xcb_ungrab_key(m_connection.xcb(), code, m_connection.root(), key.modifiers | locks);
        }
    }
    m_connection.flush();
}

void X11HotKeys::awaitRelease(const HotKey &key)
{
    const auto down = X11Keys::heldKeys(m_connection.xcb());
    for (const auto code : key.codes) {
        if (down[code] && m_held.emplace(code, nobody).second) {
            followHeldKeys();
        }
    }
}

bool X11HotKeys::isHeld()
{
    std::set<uint8_t> held;
    for (const auto &[code, hotKey] : m_held) {
        held.insert(code);
    }
    m_connection.takeArrived([&](const xcb_generic_event_t &event) { // and leaves them to be handled
        if (eventType(event) == XCB_KEY_PRESS) {
            held.insert(eventAs<xcb_key_press_event_t>(event).detail);
        } else if (eventType(event) == XCB_KEY_RELEASE) {
            held.erase(eventAs<xcb_key_release_event_t>(event).detail);
        }
        return false;
    });
    const auto down = X11Keys::heldKeys(m_connection.xcb());
    return std::ranges::any_of(held, [&](uint8_t code) { return down[code]; });
}

void X11HotKeys::remove(Id id)
{
    if (const auto lost = m_hotKeys.extract(id)) {
        ungrab(lost.mapped());
    }
}

void X11HotKeys::followKeymap()
{
    const auto locks = m_keymap.lockModifiers();
    const auto escape = escapeKeys();
    const auto isAsBefore = [&](const HotKey &key) {
        return key.modifiers == XCB_MOD_MASK_ANY ? key.codes == escape : locks == m_locks;
    };
    std::vector<Id> changed;
    for (const auto &[id, key] : m_hotKeys) {
        if (!isAsBefore(key)) {
            ungrab(key);
            changed.push_back(id);
        }
    }
    m_locks = locks;
    size_t lost = 0;
    for (const auto id : changed) {
        HotKey &key = m_hotKeys.at(id);
        key.codes = key.modifiers == XCB_MOD_MASK_ANY ? escape : key.codes;
        lost += grab(key) ? 0 : m_hotKeys.erase(id);
    }
    if (lost > 0 && m_lost) {
        m_lost();
    }
}

void X11HotKeys::handle(const xcb_generic_event_t &event)
{
    const auto &key = eventAs<xcb_key_press_event_t>(event);
    if (eventType(event) == XCB_KEY_PRESS) {
        press(key.detail, key.state);
    } else if (eventType(event) == XCB_KEY_RELEASE) {
        release(key.detail);
    }
}

void X11HotKeys::press(uint8_t code, uint16_t state)
{
    if (m_held.contains(code)) {
        return; // auto-repeat
    }
    if (m_held.empty()) {
        m_grabbingKey = code;
    }
    // While one hot key is held, the presses of all keys come here: another hot key among them has to be found.
    const auto modifiers = state & allModifiers & ~m_locks;
    const auto found = std::ranges::find_if(m_hotKeys, [&](const auto &entry) {
        const HotKey &key = entry.second;
        return key.has(code) && (key.modifiers == modifiers || key.modifiers == XCB_MOD_MASK_ANY);
    });
    if (found == m_hotKeys.end()) {
        m_held.emplace(code, std::nullopt);
        return;
    }
    m_held.emplace(code, found->first);
    call(found->first, true);
}

void X11HotKeys::release(uint8_t code)
{
    const auto held = m_held.extract(code);
    if (code == m_grabbingKey || m_keyboardGrabbed) {
        followHeldKeys();
    }
    if (held && held.mapped()) {
        call(*held.mapped(), false);
    }
}

/// The server ends its grab with the key that began it. Where another hot key is still held then, its release would go
/// to some other client; so the keyboard stays grabbed for as long as one is.
void X11HotKeys::followHeldKeys()
{
    auto *const c = m_connection.xcb();
    std::erase_if(m_held, [](const auto &entry) { return !entry.second; });
    std::vector<Id> released;
    if (!m_held.empty()) {
        const auto cookie =
            xcb_grab_keyboard(c, 0, m_connection.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const XcbPtr<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(c, cookie, nullptr));
        m_keyboardGrabbed = true;
        const auto down = reply && reply->status == XCB_GRAB_STATUS_SUCCESS ? X11Keys::heldKeys(c) : std::bitset<256>();
        std::erase_if(m_held, [&](const auto &entry) {
            if (!down[entry.first]) {
                released.push_back(*entry.second);
            }
            return !down[entry.first];
        });
    }
    if (m_held.empty() && m_keyboardGrabbed) {
        xcb_ungrab_keyboard(c, XCB_CURRENT_TIME);
        m_connection.flush();
        m_keyboardGrabbed = false;
    }
    for (const auto id : released) {
        call(id, false);
    }
}

void X11HotKeys::call(Id id, bool pressed)
{
    const auto found = m_hotKeys.find(id);
    if (found != m_hotKeys.end()) {
        const auto handler = found->second.handler; // it may remove its own registration
        handler(pressed);
    }
}
