// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <chrono>
#include <optional>

/// The token buckets that several processes share, as RateLimiter has them for one. In PostgreSQL only, by whose clock
/// they fill.
class TokenBuckets {
public:
    using Time = std::chrono::milliseconds;

    explicit TokenBuckets(Database &database) : m_database(database) {}

    std::optional<Time> take(const QString &owner, Time cost, Time whole);
    void add(const QString &owner, Time cost);

private:
    void forgetFull();

    Database &m_database;
    int m_untilForgetting = 0; ///< changes until the full ones are forgotten
};
