// SPDX-License-Identifier: MIT
#include "api/Limits.h"

net::awaitable<std::optional<Limits::Time>> Limits::take(std::string owner, Time cost, Time whole)
{
    if (!m_store.isShared()) {
        co_return m_own.take(owner, cost, whole, RateLimiter::Clock::now());
    }
    co_return co_await m_store.run(
        [&](Store &store) { return store.buckets.take(QString::fromStdString(owner), cost, whole); });
}

net::awaitable<void> Limits::add(std::string owner, Time cost)
{
    if (!m_store.isShared()) {
        m_own.add(owner, cost, RateLimiter::Clock::now());
        co_return;
    }
    co_await m_store.run([&](Store &store) {
        store.buckets.add(QString::fromStdString(owner), cost);
        return true;
    });
}
