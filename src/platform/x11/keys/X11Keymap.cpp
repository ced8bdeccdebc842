// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11Keymap.h"

#include "platform/x11/keys/X11Keys.h"

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <array>

namespace {

// Alt Gr is often missing from the modifier table, although it sets a modifier.
constexpr std::array knownModifierKeys{KEY_LEFTSHIFT, KEY_RIGHTSHIFT, KEY_LEFTCTRL, KEY_RIGHTCTRL,
                                       KEY_LEFTALT,   KEY_RIGHTALT,   KEY_LEFTMETA, KEY_RIGHTMETA};

// Lock, NumLock and ScrollLock never share these with a held key in any layout that works.
constexpr uint16_t heldModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

/// The keys of each of the eight modifiers.
std::array<std::vector<uint8_t>, 8> modifierTable(xcb_connection_t *connection)
{
    std::array<std::vector<uint8_t>, 8> table;
    const XcbPtr<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (reply) {
        const auto *code = xcb_get_modifier_mapping_keycodes(reply.get());
        for (auto &keys : table) {
            std::copy_if(code, code + reply->keycodes_per_modifier, std::back_inserter(keys),
                         [](uint8_t key) { return key != 0; });
            code += reply->keycodes_per_modifier;
        }
    }
    return table;
}

xkb_keysym_t symbolAt(xkb_keymap *keymap, xkb_keycode_t code, xkb_layout_index_t group, xkb_level_index_t level = 0)
{
    const xkb_keysym_t *symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap, code, group, level, &symbols);
    return count == 1 ? symbols[0] : XKB_KEY_NoSymbol;
}

/// The character for a symbol; for a dead key the one of its accent standing alone. 0 when there is none.
uint32_t characterOf(xkb_keysym_t symbol)
{
    static constexpr std::array<std::pair<xkb_keysym_t, uint32_t>, 16> accents{{
        {XKB_KEY_dead_grave, u'`'},
        {XKB_KEY_dead_acute, u'´'},
        {XKB_KEY_dead_circumflex, u'^'},
        {XKB_KEY_dead_tilde, u'~'},
        {XKB_KEY_dead_macron, u'¯'},
        {XKB_KEY_dead_breve, u'˘'},
        {XKB_KEY_dead_abovedot, u'˙'},
        {XKB_KEY_dead_diaeresis, u'¨'},
        {XKB_KEY_dead_abovering, u'˚'},
        {XKB_KEY_dead_doubleacute, u'˝'},
        {XKB_KEY_dead_caron, u'ˇ'},
        {XKB_KEY_dead_cedilla, u'¸'},
        {XKB_KEY_dead_ogonek, u'˛'},
        {XKB_KEY_dead_iota, u'ͺ'},
        {XKB_KEY_dead_stroke, u'/'},
        {XKB_KEY_dead_currency, u'¤'},
    }};
    const auto *const accent = std::ranges::find(accents, symbol, &std::pair<xkb_keysym_t, uint32_t>::first);
    return accent == accents.end() ? xkb_keysym_to_utf32(symbol) : accent->second;
}

bool isLock(xkb_keymap *keymap, xkb_keycode_t code)
{
    const auto symbol = symbolAt(keymap, code, 0);
    return symbol == XKB_KEY_Num_Lock || symbol == XKB_KEY_Scroll_Lock;
}

} // namespace

std::unique_ptr<X11Keymap> X11Keymap::create(X11Connection &connection)
{
    if (!connection.extensions().xkb) {
        return nullptr;
    }
    std::unique_ptr<X11Keymap> keymap(new X11Keymap(connection));
    return keymap->m_context ? std::move(keymap) : nullptr;
}

X11Keymap::X11Keymap(X11Connection &connection)
    : X11Listener(connection),
      m_connection(connection),
      m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)),
      m_firstEvent(xcb_get_extension_data(connection.xcb(), &xcb_xkb_id)->first_event)
{
    auto *const c = connection.xcb();
    constexpr uint16_t mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(c, XCB_XKB_ID_USE_CORE_KBD,
                              XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
                                  XCB_XKB_EVENT_TYPE_STATE_NOTIFY,
                              0, 0, mapParts, mapParts, &details);
    const XcbPtr<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(c, xcb_xkb_get_state(c, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    m_group = state ? state->group : 0;
}

void X11Keymap::refresh()
{
    m_connection.takeArrived([this](const xcb_generic_event_t &event) { return follow(event); });
}

void X11Keymap::handle(const xcb_generic_event_t &event)
{
    follow(event);
}

bool X11Keymap::follow(const xcb_generic_event_t &event)
{
    if (eventType(event) != m_firstEvent) {
        return false;
    }
    switch (event.pad0) { // the extension's events share one number; this byte tells them apart
    case XCB_XKB_STATE_NOTIFY:
        m_group = eventAs<xcb_xkb_state_notify_event_t>(event).group;
        return true;
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
        m_keymap.reset();
        if (!m_announced) { // one change of layout comes as a volley of events
            m_announced = true;
            QMetaObject::invokeMethod(
                this,
                [this] {
                    m_announced = false;
                    Q_EMIT changed();
                },
                Qt::QueuedConnection);
        }
        return true;
    default:
        return false;
    }
}

xkb_keymap *X11Keymap::keymap()
{
    if (!m_keymap) {
        auto *const c = m_connection.xcb();
        m_keymap.reset(xkb_x11_keymap_new_from_device(m_context.get(), c, xkb_x11_get_core_keyboard_device_id(c),
                                                      XKB_KEYMAP_COMPILE_NO_FLAGS));
    }
    return m_keymap.get();
}

QString X11Keymap::text(uint8_t code)
{
    auto *const map = keymap();
    if (map == nullptr) {
        return {};
    }
    auto symbol = symbolAt(map, code, m_group);
    if (symbol >= XKB_KEY_KP_Home && symbol <= XKB_KEY_KP_Delete) {
        symbol = symbolAt(map, code, m_group, 1);
    }
    const uint32_t character = characterOf(symbol);
    return character == 0 ? QString() : QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1);
}

std::optional<uint8_t> X11Keymap::keyFor(xkb_keysym_t symbol)
{
    if (keymap() == nullptr) {
        return std::nullopt;
    }
    auto found = keyFor(symbol, m_group);
    for (xkb_layout_index_t group = 0; !found && group < xkb_keymap_num_layouts(keymap()); ++group) {
        found = keyFor(symbol, group);
    }
    return found;
}

std::optional<uint8_t> X11Keymap::keyFor(xkb_keysym_t symbol, xkb_layout_index_t group)
{
    const auto last = std::min<xkb_keycode_t>(xkb_keymap_max_keycode(keymap()), UINT8_MAX);
    for (auto code = xkb_keymap_min_keycode(keymap()); code <= last; ++code) {
        if (symbolAt(keymap(), code, group) == symbol) {
            return uint8_t(code);
        }
    }
    return std::nullopt;
}

bool X11Keymap::types(uint8_t code, xkb_keysym_t symbol)
{
    auto *const map = keymap();
    const xkb_layout_index_t groups = map == nullptr ? 0 : xkb_keymap_num_layouts_for_key(map, code);
    for (xkb_layout_index_t group = 0; group < groups; ++group) {
        if (symbolAt(map, code, group) == symbol) {
            return true;
        }
    }
    return false;
}

uint16_t X11Keymap::modifiersOf(const std::bitset<256> &held)
{
    constexpr xkb_mod_mask_t coreModifiers = 0xFF; // the first eight, in the order of the core protocol
    auto *const map = keymap();
    if (map == nullptr) {
        return 0;
    }
    const std::unique_ptr<xkb_state, Unref> state(xkb_state_new(map));
    xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, m_group);
    for (size_t code = 0; code < held.size(); ++code) {
        if (held[code]) {
            xkb_state_update_key(state.get(), xkb_keycode_t(code), XKB_KEY_DOWN);
        }
    }
    return uint16_t(xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_DEPRESSED) & coreModifiers);
}

std::optional<uint8_t> X11Keymap::keyForModifier(uint16_t modifier)
{
    // The usual places first: elsewhere may stand a key that the keyboard does not have.
    auto keys = modifierKeys();
    std::stable_partition(keys.begin(), keys.end(), [](uint8_t key) { return key < X11Keys::evdevOffset + KEY_F11; });
    const auto found = std::ranges::find_if(keys, [&](uint8_t key) {
        std::bitset<256> alone;
        alone.set(key);
        return modifiersOf(alone) == modifier;
    });
    return found == keys.end() ? std::nullopt : std::optional(*found);
}

uint16_t X11Keymap::lockModifiers()
{
    uint16_t locks = XCB_MOD_MASK_LOCK;
    if (auto *const map = keymap()) {
        const auto table = modifierTable(m_connection.xcb());
        for (size_t modifier = 0; modifier < table.size(); ++modifier) {
            if (std::ranges::any_of(table[modifier], [map](uint8_t key) { return isLock(map, key); })) {
                locks |= uint16_t(1U << modifier);
            }
        }
    }
    return locks & uint16_t(~heldModifiers);
}

std::vector<uint8_t> X11Keymap::modifierKeys()
{
    std::vector<uint8_t> keys(std::size(knownModifierKeys));
    std::ranges::transform(knownModifierKeys, keys.begin(), [](int evdev) { return uint8_t(evdev + 8); });
    const auto locks = lockModifiers();
    const auto table = modifierTable(m_connection.xcb());
    for (size_t modifier = 0; modifier < table.size(); ++modifier) {
        if ((locks & (1U << modifier)) == 0) {
            keys.insert(keys.end(), table[modifier].begin(), table[modifier].end());
        }
    }
    std::ranges::sort(keys);
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end()); // clang-tidy 14 can't parse the ranges' one
    return keys;
}
