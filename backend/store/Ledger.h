// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <functional>
#include <optional>

/// Seconds since the epoch.
using WallClock = std::function<qint64()>;

/// Token balances. A device's balance is the sum of its ledger entries at any time, and never below zero.
class Ledger {
public:
    struct Charge {
        qint64 balance = 0; ///< afterwards
        qint64 taken = 0;   ///< 0 for a device that is not metered
    };

    Ledger(Database &database, WallClock clock);

    /// The device must exist.
    qint64 balance(const QString &deviceId);

    /// Takes `tokens` in one transaction, or returns nothing when the balance does not cover them.
    std::optional<Charge> charge(const QString &deviceId, qint64 tokens);

    /// Gives back what a charge took for a transcript that did not reach its device.
    void refund(const QString &deviceId, const Charge &charge);

    /// The sum of the free grants since `since`.
    qint64 grantedSince(qint64 since);

    /// Adds to the balance inside the caller's transaction; `reason` is "grant", "purchase" or "refund".
    void credit(const QString &deviceId, qint64 tokens, const QString &reason);

private:
    void record(const QString &deviceId, qint64 amount, const QString &reason);

    Database &m_database;
    WallClock m_clock;
};
