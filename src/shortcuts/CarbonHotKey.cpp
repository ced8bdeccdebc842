// SPDX-License-Identifier: MIT
#include "shortcuts/CarbonHotKey.h"

#include <utility>

CarbonHotKey::CarbonHotKey(uint32_t id, std::unique_ptr<HotKeyRegistration> registration)
    : m_id(id), m_registration(std::move(registration))
{
}

std::unique_ptr<CarbonHotKey> CarbonHotKey::create(HotKeys &hotKeys, uint32_t keyCode, uint32_t modifiers,
                                                   HotKeys::Handler handler)
{
    static uint32_t nextId = 1;
    const uint32_t id = nextId++;
    auto registration = hotKeys.add(keyCode, modifiers, std::move(handler));
    if (!registration) {
        return nullptr;
    }
    return std::unique_ptr<CarbonHotKey>(new CarbonHotKey(id, std::move(registration)));
}
