// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"

#include <map>
#include <set>
#include <utility>

/// Records the registrations and presses them. A hot key that is down grabs the keyboard until it is released, also
/// when its registration has gone meanwhile.
class FakeHotKeys : public HotKeys {
public:
    using Combination = std::pair<uint32_t, uint32_t>;

    [[nodiscard]] std::unique_ptr<HotKeyRegistration> add(uint32_t keyCode, uint32_t modifiers,
                                                          Handler handler) override
    {
        const Combination combination{keyCode, modifiers};
        if (takenByOthers.contains(combination) || m_handlers.contains(combination)) {
            return nullptr;
        }
        m_handlers[combination] = std::move(handler);
        return std::make_unique<Registration>(*this, combination);
    }

    void setLostHandler(std::function<void()> handler) override { m_lost = std::move(handler); }

    bool isHeld() const { return !m_held.empty(); }

    /// Another program gets hold of combinations that this one had.
    void lose(const std::set<Combination> &combinations)
    {
        for (const Combination &combination : combinations) {
            m_handlers.erase(combination);
            takenByOthers.insert(combination);
        }
        m_lost();
    }

    bool isRegistered(uint32_t keyCode, uint32_t modifiers) const { return m_handlers.contains({keyCode, modifiers}); }

    size_t count() const { return m_handlers.size(); }

    /// False when nobody has registered the combination.
    bool press(uint32_t keyCode, uint32_t modifiers) { return send({keyCode, modifiers}, true); }
    bool release(uint32_t keyCode, uint32_t modifiers)
    {
        m_held.erase({keyCode, modifiers});
        return send({keyCode, modifiers}, false);
    }

    std::set<Combination> takenByOthers;

private:
    struct Registration : HotKeyRegistration {
        Registration(FakeHotKeys &registry, Combination which) : owner(registry), combination(which) {}
        Registration(const Registration &) = delete;
        Registration &operator=(const Registration &) = delete;
        ~Registration() override { owner.m_handlers.erase(combination); }

        FakeHotKeys &owner;
        Combination combination;
    };

    bool send(Combination combination, bool pressed)
    {
        const auto found = m_handlers.find(combination);
        if (found == m_handlers.end()) {
            return false;
        }
        if (pressed) {
            m_held.insert(combination);
        }
        const Handler handler = found->second; // it may end its own registration
        handler(pressed);
        return true;
    }

    std::map<Combination, Handler> m_handlers;
    std::set<Combination> m_held;
    std::function<void()> m_lost;
};
