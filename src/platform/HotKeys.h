// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

/// One registration of a system-wide hot key; it lives as long as the object.
/// Main thread only. The handler is called with true for press and false for release, and never after destruction; it
/// may destroy the registration.
class HotKeyRegistration {
public:
    HotKeyRegistration() = default;
    HotKeyRegistration(const HotKeyRegistration &) = delete;
    HotKeyRegistration &operator=(const HotKeyRegistration &) = delete;
    virtual ~HotKeyRegistration() = default;
};

/// System-wide hot keys: a key with exactly the given modifiers, whatever the lock keys say. Holding the key is one
/// press (auto-repeat is filtered), and the release of the key is reported whatever the modifiers are by then. A hot
/// key that is added while its key is down starts with the next press.
///
/// Esc without modifiers is the exception: it is the key that types Esc, wherever it stands, with any modifiers. It
/// calls off what another hot key has begun, whose keys may still be down.
class HotKeys {
public:
    using Handler = std::function<void(bool pressed)>;

    virtual ~HotKeys() = default;

    /// `keyCode` is a virtual key code (KeyCodes.h), `modifiers` uses the hot-key masks of KeyCodes.h, other bits are
    /// ignored. Returns null when the combination is taken, by this process too, or the key does not exist here.
    [[nodiscard]] virtual std::unique_ptr<HotKeyRegistration> add(uint32_t keyCode, uint32_t modifiers,
                                                                  Handler handler) = 0;

    /// Called from the event loop when hot keys were lost: another program has what a change of the layout would have
    /// made of them. Their registrations do nothing any more; adding them again tells which are taken.
    virtual void setLostHandler(std::function<void()> handler) = 0;
};
