// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>

#include <chrono>
#include <map>
#include <optional>

/// Counts what addresses do: each may do `burst` things at once, and regains one after every `pace`. The 2^64 addresses
/// that one IPv6 customer has count as one. One thread at a time.
class RateLimiter {
public:
    using Clock = std::chrono::steady_clock;

    /// A `burst` of 0 allows everything.
    RateLimiter(int burst, std::chrono::seconds pace) : m_burst(burst), m_pace(pace) {}

    /// Nothing when the address may do it now, and then it counts as done; otherwise the time until it may.
    std::optional<std::chrono::seconds> take(const boost::asio::ip::address &address, Clock::time_point now);

private:
    int m_burst;
    std::chrono::seconds m_pace;
    /// When an address will have regained everything. Those that have are forgotten.
    std::map<boost::asio::ip::address, Clock::time_point> m_full;
    Clock::time_point m_nextCleaning;
};
