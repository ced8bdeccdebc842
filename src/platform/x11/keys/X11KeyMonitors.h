// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyMonitors.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11Keymap.h"

#include <bitset>
#include <map>

/// Key monitors by raw events of XInput 2, asked for only while a monitor exists.
class X11KeyMonitors final : public QObject, public KeyMonitors, private X11Listener {
    Q_OBJECT

public:
    /// `hasFocus` tells whether this program has the keyboard focus.
    X11KeyMonitors(X11Connection &connection, X11Keymap &keymap, std::function<bool()> hasFocus);

    [[nodiscard]] std::unique_ptr<KeyMonitor> addGlobal(Handler handler) override;
    [[nodiscard]] std::unique_ptr<KeyMonitor> addLocal(Handler handler) override;
    bool canSee(uint16_t keyCode) const override;

private:
    class Monitor;
    using Id = uint64_t;

    struct Entry {
        bool local;
        Handler handler;
    };

    std::unique_ptr<KeyMonitor> add(bool local, Handler handler);
    void remove(Id id);
    bool select(uint32_t events);

    void handle(const xcb_generic_event_t &event) override;
    void change(uint8_t code, bool down);
    uint16_t keyCodeOf(uint8_t code);
    uint32_t flags();
    void report(const KeyEvent &event);
    bool isCapsLocked() const;

    X11Connection &m_connection;
    X11Keymap &m_keymap;
    std::function<bool()> m_hasFocus;
    std::map<Id, Entry> m_monitors;
    Id m_lastId = 0;
    std::bitset<256> m_held;
    bool m_capsLocked = false;
};
