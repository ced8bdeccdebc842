// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"

#include <cstdint>
#include <memory>

/// One system-wide hot key that lives as long as the object. Main thread only. The handler gets true for press and
/// false for release; it may destroy the object.
class CarbonHotKey {
public:
    /// Null when the combination is taken. `keyCode` and `modifiers` as in HotKeys::add.
    static std::unique_ptr<CarbonHotKey> create(HotKeys &hotKeys, uint32_t keyCode, uint32_t modifiers,
                                                HotKeys::Handler handler);

    CarbonHotKey(const CarbonHotKey &) = delete;
    CarbonHotKey &operator=(const CarbonHotKey &) = delete;
    ~CarbonHotKey() = default;

    /// Unique within the process, from 1; a refused registration uses one up too.
    uint32_t id() const { return m_id; }

private:
    CarbonHotKey(uint32_t id, std::unique_ptr<HotKeyRegistration> registration);

    uint32_t m_id;
    std::unique_ptr<HotKeyRegistration> m_registration;
};
