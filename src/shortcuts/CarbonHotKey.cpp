// SPDX-License-Identifier: MIT
#include "shortcuts/CarbonHotKey.h"

#include <utility>

CarbonHotKey::CarbonHotKey(std::unique_ptr<HotKeyRegistration> registration) : m_registration(std::move(registration))
{
}

std::unique_ptr<CarbonHotKey> CarbonHotKey::create(HotKeys &hotKeys, uint32_t keyCode, uint32_t modifiers,
                                                   HotKeys::Handler handler)
{
    auto registration = hotKeys.add(keyCode, modifiers, std::move(handler));
    if (!registration) {
        return nullptr;
    }
    return std::unique_ptr<CarbonHotKey>(new CarbonHotKey(std::move(registration)));
}
