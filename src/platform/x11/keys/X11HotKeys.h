// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11Keymap.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

/// Hot keys by passive key grabs on the root window. The connection is not used by others for key grabs.
class X11HotKeys final : public QObject, public HotKeys, private X11Listener {
    Q_OBJECT

public:
    X11HotKeys(X11Connection &connection, X11Keymap &keymap);

    [[nodiscard]] std::unique_ptr<HotKeyRegistration> add(uint32_t keyCode, uint32_t modifiers,
                                                          Handler handler) override;
    void setLostHandler(std::function<void()> handler) override { m_lost = std::move(handler); }

    /// A hot key is down, as far as the server knows now: all keys go to this connection.
    bool isHeld();

private:
    class Registration;
    using Id = uint64_t;
    static constexpr Id nobody = 0;

    struct HotKey {
        std::vector<uint8_t> codes;
        uint16_t modifiers; // XCB_MOD_MASK_ANY for any
        Handler handler;

        bool has(uint8_t code) const { return std::ranges::find(codes, code) != codes.end(); }
    };

    void handle(const xcb_generic_event_t &event) override;
    void press(uint8_t code, uint16_t state);
    void release(uint8_t code);
    void followHeldKeys();
    void call(Id id, bool pressed);

    std::vector<uint8_t> escapeKeys();
    bool grab(const HotKey &key);
    bool grab(uint8_t code, uint16_t modifiers);
    bool grabInAnyState(uint8_t code);
    void ungrab(const HotKey &key);
    void awaitRelease(const HotKey &key);
    void remove(Id id);
    void followKeymap();

    X11Connection &m_connection;
    X11Keymap &m_keymap;
    uint16_t m_locks;
    std::function<void()> m_lost;
    std::map<Id, HotKey> m_hotKeys;
    Id m_lastId = 0;
    /// Keys whose press the server gave us, with the hot key each of them was, if any. `nobody` stands for one that was
    /// down when it became a hot key: its release is waited for, since until then its auto-repeat looks like a press.
    std::map<uint8_t, std::optional<Id>> m_held;
    uint8_t m_grabbingKey = 0; // its release ends the server's grab
    bool m_keyboardGrabbed = false;
};
