// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyCodes.h"
#include "platform/x11/connection/XcbPtr.h"

#include <bitset>
#include <optional>

/// Between the program's key vocabulary and the server's.
namespace X11Keys {

/// X11 key codes are evdev codes, moved past the eight that the protocol reserves.
inline constexpr uint16_t evdevOffset = 8;

/// The key code of a virtual key code; nothing for a key beyond the protocol's 255, like fn.
inline std::optional<uint8_t> fromKeyCode(uint32_t keyCode)
{
    const auto evdev = KeyCode::toEvdev(keyCode);
    return evdev && *evdev + evdevOffset <= UINT8_MAX ? std::optional(uint8_t(*evdev + evdevOffset)) : std::nullopt;
}

/// The keys held now, by key code.
inline std::bitset<256> heldKeys(xcb_connection_t *connection)
{
    std::bitset<256> held;
    const XcbPtr<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
    for (size_t code = 0; reply && code < held.size(); ++code) {
        held[code] = (reply->keys[code / 8] >> (code % 8) & 1) != 0;
    }
    return held;
}

} // namespace X11Keys
