// SPDX-License-Identifier: MIT
#pragma once

#include "http/RateLimiter.h"
#include "store/StoreThreads.h"

/// Token buckets by owner: in the database when several processes may share it, so that they are the same for all,
/// otherwise in memory. I/O thread.
class Limits {
public:
    using Time = std::chrono::milliseconds;

    /// `store` must outlive it.
    explicit Limits(StoreThreads &store) : m_store(store) {}

    /// Nothing when the owner's bucket, which fills up in `whole`, has `cost`; otherwise the time until it will.
    net::awaitable<std::optional<Time>> take(std::string owner, Time cost, Time whole);

    /// Takes out what has been used already.
    net::awaitable<void> add(std::string owner, Time cost);

private:
    StoreThreads &m_store;
    RateLimiter m_own;
};
