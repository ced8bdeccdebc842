// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyEvents.h"

#include <functional>
#include <vector>

/// Records what is posted; the test says which modifiers are held.
class FakeKeyEvents : public KeyEvents {
public:
    struct Posted {
        uint16_t keyCode;
        bool down;
        uint32_t flags;
        bool operator==(const Posted &) const = default;
    };

    uint32_t modifierFlags() const override { return heldModifiers; }
    bool post(uint16_t keyCode, bool down, uint32_t flags) override
    {
        posted.push_back({keyCode, down, flags});
        if (onPost) {
            onPost();
        }
        return true;
    }

    uint32_t heldModifiers = 0;
    std::vector<Posted> posted;
    std::function<void()> onPost;
};
