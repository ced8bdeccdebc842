// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>

/// Token buckets, measured in the time that it takes to fill them: a full one has room for `whole`, what its owner does
/// takes some of that, and it fills up again as time passes. One thread at a time.
class RateLimiter {
public:
    using Clock = std::chrono::steady_clock;
    using Time = std::chrono::milliseconds;

    /// Returns nothing when the owner's bucket has `cost`, which is taken out; otherwise the time until it will.
    std::optional<Time> take(const std::string &owner, Time cost, Time whole, Clock::time_point now);

    /// Takes out what has been used already, also when that is more than there is.
    void add(const std::string &owner, Time cost, Clock::time_point now);

private:
    Clock::time_point &fullAt(const std::string &owner, Clock::time_point now);

    /// When a bucket will be full. Those that are full are forgotten.
    std::map<std::string, Clock::time_point> m_full;
    Clock::time_point m_nextCleaning;
};
