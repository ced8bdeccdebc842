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
    /// Virtual key code (KeyCodes.h) of the key that went down or, for FlagsChanged, of the modifier that changed.
    uint16_t keyCode = 0;
    /// Event-flag encoding of KeyCodes.h, with the device-dependent bits of each modifier key held after the event.
    uint32_t modifierFlags = 0;
    /// What the key types in the current layout without modifiers; absent where the backend does not say.
    std::optional<QString> charactersIgnoringModifiers = std::nullopt;
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
};
