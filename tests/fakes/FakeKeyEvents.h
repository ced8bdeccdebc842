// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyEvents.h"

#include <functional>
#include <vector>

/// Records what is posted; the test says which modifiers are held and what is in the way.
class FakeKeyEvents : public KeyEvents {
public:
    struct Posted {
        uint16_t keyCode;
        bool down;
        uint32_t flags;
        bool operator==(const Posted &) const = default;
    };

    uint32_t modifierFlags() const override { return heldModifiers; }
    Obstacle obstacle(uint16_t /*keyCode*/) override
    {
        return isHotKeyHeld && isHotKeyHeld() ? Obstacle::OwnHotKey : inTheWay;
    }
    bool post(uint16_t keyCode, bool down, uint32_t flags) override
    {
        posted.push_back({keyCode, down, flags});
        if (down && onPaste) {
            onPaste();
        }
        return true;
    }

    uint32_t heldModifiers = 0;
    Obstacle inTheWay = Obstacle::None;
    std::vector<Posted> posted;
    /// What the program in front does when it gets the keys.
    std::function<void()> onPaste;
    std::function<bool()> isHotKeyHeld;
};
