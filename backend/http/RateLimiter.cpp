// SPDX-License-Identifier: MIT
#include "http/RateLimiter.h"

#include <algorithm>

namespace {

constexpr std::chrono::minutes cleaningPace{1};

} // namespace

std::optional<RateLimiter::Time> RateLimiter::take(const std::string &owner, Time cost, Time whole,
                                                   Clock::time_point now)
{
    auto &full = fullAt(owner, now);
    if (const auto excess = full + cost - now - whole; excess > Clock::duration::zero()) {
        return std::chrono::ceil<Time>(excess);
    }
    full += cost;
    return std::nullopt;
}

void RateLimiter::add(const std::string &owner, Time cost, Clock::time_point now)
{
    fullAt(owner, now) += cost;
}

RateLimiter::Clock::time_point &RateLimiter::fullAt(const std::string &owner, Clock::time_point now)
{
    if (now >= m_nextCleaning) {
        std::erase_if(m_full, [now](const auto &entry) { return entry.second <= now; });
        m_nextCleaning = now + cleaningPace;
    }
    auto &full = m_full[owner];
    full = std::max(full, now);
    return full;
}
