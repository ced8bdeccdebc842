// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

/// How many of something each owner may have at a time. One thread; must outlive the shares.
class Shares {
public:
    /// 0 is no limit.
    explicit Shares(int each) : m_each(each) {}

    /// Sets the limit for what is taken from now on.
    void limit(int each) { m_each = each; }

    /// A share is given back with its last copy.
    using Share = std::shared_ptr<void>;

    /// Returns null when the owner has all it may have.
    Share take(const std::string &owner)
    {
        const auto place = m_taken.try_emplace(owner, 0).first;
        if (m_each > 0 && place->second >= m_each) {
            return nullptr;
        }
        ++place->second;
        return {this, [this, place](void *) {
                    if (--place->second == 0) {
                        m_taken.erase(place);
                    }
                }};
    }

private:
    int m_each;
    std::map<std::string, int> m_taken;
};
