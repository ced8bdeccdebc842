// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyEvents.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11HotKeys.h"
#include "platform/x11/keys/X11Keymap.h"
#include "platform/x11/windows/X11Focus.h"

#include <QStringList>

#include <map>
#include <vector>

/// Synthetic keys by the XTEST extension. A key down also presses the keys of its modifiers, and its key up releases
/// exactly what was pressed, whatever has the focus by then. Modifiers somebody still holds when a key goes down are
/// released first and stay released.
class X11KeyEvents final : public KeyEvents {
public:
    /// `terminalClasses`: window classes in which Ctrl+Shift+V pastes.
    X11KeyEvents(X11Connection &connection, X11Keymap &keymap, X11HotKeys &hotKeys, const QStringList &terminalClasses);

    uint32_t modifierFlags() const override;
    Obstacle obstacle(uint16_t keyCode) override;
    bool post(uint16_t keyCode, bool down, uint32_t flags) override;

private:
    /// Key codes in the order of pressing, the key itself last.
    using Chord = std::vector<uint8_t>;

    bool press(uint16_t keyCode, uint32_t flags);
    bool release(uint16_t keyCode);
    void releaseHeldModifiers();
    void fake(uint8_t type, uint8_t code);

    uint8_t vKey();
    Chord pasteChord();
    bool isKeyboardGrabbed();

    X11Connection &m_connection;
    X11Keymap &m_keymap;
    X11HotKeys &m_hotKeys;
    X11Focus m_focus;
    QStringList m_terminalClasses;
    std::map<uint16_t, Chord> m_pressed;
};
