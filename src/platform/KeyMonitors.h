// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

/// A raw key or modifier change.
struct KeyEvent {
    enum class Type { KeyDown, FlagsChanged };

    Type type = Type::KeyDown;
    /// Virtual key code (KeyCodes.h) of the key that went down or, for FlagsChanged, of the modifier that changed. Esc
    /// is the key that types it, every other key the one at its place.
    uint16_t keyCode = 0;
    /// Event-flag encoding of KeyCodes.h: what a hot key would see of the modifiers held after the event, and the
    /// device-dependent bit of each modifier key that is down at its place, whatever the layout makes of it.
    uint32_t modifierFlags = 0;
    /// What the key types in the current layout without modifiers; absent where the backend does not say.
    std::optional<QString> charactersIgnoringModifiers = std::nullopt;
    /// The key with the modifiers held can be a hot key (HotKeys.h).
    bool canBeHotKey = true;
};

/// One running event stream; destroying it ends the stream. The handler may destroy it.
class KeyMonitor {
public:
    KeyMonitor() = default;
    KeyMonitor(const KeyMonitor &) = delete;
    KeyMonitor &operator=(const KeyMonitor &) = delete;
    virtual ~KeyMonitor() = default;
};

/// Streams of raw key-down and modifier-change events, in the order of the keys; key-up of ordinary keys is not
/// reported. Main thread only. Each event goes to the global monitors when another program has the keyboard focus and
/// to the local ones when this program has it, never to both.
class KeyMonitors {
public:
    using Handler = std::function<void(const KeyEvent &)>;

    virtual ~KeyMonitors() = default;

    /// Null when the desktop offers no such stream.
    [[nodiscard]] virtual std::unique_ptr<KeyMonitor> addGlobal(Handler handler) = 0;
    [[nodiscard]] virtual std::unique_ptr<KeyMonitor> addLocal(Handler handler) = 0;

    /// Whether events of this modifier key (virtual key code) can arrive here at all. Many keyboards keep fn to
    /// themselves, and some desktops have no number for it.
    virtual bool canSee(uint16_t keyCode) const = 0;
};
