// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Synthetic key events and the state of the modifier keys. Main thread only.
class KeyEvents {
public:
    virtual ~KeyEvents() = default;

    /// The modifier keys held now, whoever holds them, in the event-flag encoding of KeyCodes.h. Locks don't count.
    virtual uint32_t modifierFlags() const = 0;

    /// What would keep a key posted now from the program in front.
    enum class Obstacle {
        None,
        /// A hot key of this program is down: until it is released every key comes back to this program.
        OwnHotKey,
        /// The user holds the very key, so that it can't be pressed.
        HeldKey,
        /// No window has the keyboard focus.
        NoFocus,
        /// Another program takes all keys, as a screen locker or an open menu does.
        OtherGrab
    };
    virtual Obstacle obstacle(uint16_t keyCode) = 0;

    /// Posts one key event as if typed, with exactly the modifiers of `flags` (event-flag encoding). False when the
    /// event can't be made. Command with V is posted as what pastes in the focused window (Ctrl+V, or Ctrl+Shift+V in
    /// a terminal), through the key that types "v" in the current layout.
    virtual bool post(uint16_t keyCode, bool down, uint32_t flags) = 0;
};
