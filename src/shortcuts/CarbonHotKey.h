// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"

#include <cstdint>
#include <memory>

/// One system-wide hot key that lives as long as the object. Main thread only. The handler gets true for press and
/// false for release; it may destroy the object. It adds nothing to a registration but a name for those who own one:
/// whoever holds it decides how long the key is taken from all other programs.
class CarbonHotKey {
public:
    /// Null when the combination is taken. `keyCode` and `modifiers` as in HotKeys::add.
    static std::unique_ptr<CarbonHotKey> create(HotKeys &hotKeys, uint32_t keyCode, uint32_t modifiers,
                                                HotKeys::Handler handler);

    CarbonHotKey(const CarbonHotKey &) = delete;
    CarbonHotKey &operator=(const CarbonHotKey &) = delete;
    ~CarbonHotKey() = default;

private:
    explicit CarbonHotKey(std::unique_ptr<HotKeyRegistration> registration);

    std::unique_ptr<HotKeyRegistration> m_registration;
};
