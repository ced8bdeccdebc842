// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11Keymap.h"

#include <map>
#include <optional>

/// Hot keys by passive key grabs on the root window. The connection is not used by others for key grabs.
class X11HotKeys final : public QObject, public HotKeys, private X11Listener {
    Q_OBJECT

public:
    X11HotKeys(X11Connection &connection, X11Keymap &keymap);

    [[nodiscard]] std::unique_ptr<HotKeyRegistration> add(uint32_t keyCode, uint32_t modifiers,
                                                          Handler handler) override;

private:
    class Registration;
    using Id = uint64_t;

    struct HotKey {
        uint8_t code;
        uint16_t modifiers;
        Handler handler;
    };

    void handle(const xcb_generic_event_t &event) override;
    void press(uint8_t code, uint16_t state);
    void release(uint8_t code);
    void followHeldKeys();
    void call(Id id, bool pressed);

    bool grab(const HotKey &key);
    void ungrab(const HotKey &key);
    void remove(Id id);
    void followKeymap();

    X11Connection &m_connection;
    X11Keymap &m_keymap;
    uint16_t m_locks;
    std::map<Id, HotKey> m_hotKeys;
    Id m_lastId = 0;
    /// Keys whose press the server gave us, with the hot key each of them was, if any.
    std::map<uint8_t, std::optional<Id>> m_held;
    uint8_t m_grabbingKey = 0; // its release ends the server's grab
    bool m_keyboardGrabbed = false;
};
