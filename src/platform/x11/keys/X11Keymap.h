// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QString>
#include <xkbcommon/xkbcommon.h>

#include <bitset>
#include <memory>
#include <optional>
#include <vector>

/// The keyboard layout and its current group, followed as the user changes them.
class X11Keymap final : public QObject, private X11Listener {
    Q_OBJECT

public:
    /// Null when the server has no keyboard extension.
    static std::unique_ptr<X11Keymap> create(X11Connection &connection);

    /// Takes in the changes that happened until now; without it they are taken in from the event loop.
    void refresh();

    /// What a key types in the current group without modifiers, a key of the keypad as if NumLock were on; empty when
    /// it types nothing.
    QString text(uint8_t code);

    /// A key that types the symbol without modifiers: in the current group, else in any other.
    std::optional<uint8_t> keyFor(xkb_keysym_t symbol);

    /// Whether the key types the symbol without modifiers, in any group.
    bool types(uint8_t code, xkb_keysym_t symbol);

    /// The modifiers of the core protocol that these keys set while they are held, as the layout has it: a layout may
    /// make Caps Lock a Control key, or swap Alt and Super.
    uint16_t modifiersOf(const std::bitset<256> &held);

    /// A key that sets this modifier and no other.
    std::optional<uint8_t> keyForModifier(uint16_t modifier);

    /// The modifiers that only lock keys set: Lock, and those of NumLock and ScrollLock.
    uint16_t lockModifiers();

    /// Every key that sets a modifier which is no lock.
    std::vector<uint8_t> modifierKeys();

Q_SIGNALS:
    /// The layout or the modifier table changed, not the group.
    void changed();

private:
    struct Unref {
        void operator()(xkb_context *context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state *state) const { xkb_state_unref(state); }
    };

    explicit X11Keymap(X11Connection &connection);

    void handle(const xcb_generic_event_t &event) override;
    bool follow(const xcb_generic_event_t &event);
    xkb_keymap *keymap();
    std::optional<uint8_t> keyFor(xkb_keysym_t symbol, xkb_layout_index_t group);

    X11Connection &m_connection;
    std::unique_ptr<xkb_context, Unref> m_context;
    std::unique_ptr<xkb_keymap, Unref> m_keymap; // null until it is asked for after a change
    xkb_layout_index_t m_group = 0;
    uint8_t m_firstEvent;
    bool m_announced = false;
};
