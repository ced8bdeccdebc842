// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"
#include "support/WallClock.h"

/// One change to a balance, and why: "grant" (free tokens), "transcription", "purchase", "refund" or
/// "operator".
struct LedgerEntry {
    qint64 id = 0;
    QString deviceId;
    qint64 amount = 0;
    QString reason;
    QString reference; ///< the purchase, or the operator's note
    qint64 createdAt = 0;
};

/// Token balances. A device's balance is the sum of its ledger entries at any time, and never below zero.
///
/// A transcription is paid in three steps: hold() sets its price aside before the engine runs, so that requests of one
/// device at the same moment can't spend the same tokens; deliver() says that the reply is about to be sent; settle()
/// takes the tokens when it has been, or release() lets go of them. A process that dies in between has taken nothing:
/// its holds lapse after `holdLifetime`.
class Ledger {
public:
    /// The most tokens that a device may have, so that SQLite counts every sum in whole numbers.
    static constexpr qint64 mostTokens = 1'000'000'000'000'000;

    /// How long a hold lasts, in seconds: longer than a client waits for a transcript.
    static constexpr qint64 holdLifetime = 300;

    struct Hold {
        QString id; ///< empty for a device that is not metered
        QString deviceId;
        qint64 amount = 0;
    };

    Ledger(Database &database, WallClock clock);

    /// What the device can see of its balance: without what is being delivered. The device must exist.
    qint64 balance(const QString &deviceId);

    /// Returns nothing when the balance, less what is on hold already, does not cover `tokens`.
    std::optional<Hold> hold(const QString &deviceId, qint64 tokens);

    /// The balance as it is after this hold, or nothing when the hold has lapsed and the balance does not cover
    /// another.
    std::optional<qint64> deliver(Hold &hold);
    /// The tokens that were taken: none the second time, when the hold has lapsed, or when it is empty.
    qint64 settle(const Hold &hold);
    void release(const Hold &hold);

    /// Adds to the balance inside the caller's transaction. `tokens` may be negative. False, without any effect, when
    /// the balance would not cover what is on hold or be above `mostTokens`, or there is no such device.
    bool credit(const QString &deviceId, qint64 tokens, const QString &reason, const QString &reference = {});

    /// Takes `tokens` inside the caller's transaction, or as many as are there and not on hold, which it returns. The
    /// reference tells how many were missing.
    qint64 takeUpTo(const QString &deviceId, qint64 tokens, const QString &reason, const QString &reference);

    /// Lists the entries of one device or of all after the entry `after`, the oldest first.
    QList<LedgerEntry> entries(const QString &deviceId, qint64 after, int most);

    /// Lists the devices whose balance is not what their entries add up to.
    QStringList unexplained();

private:
    void lapse(const QString &deviceId);
    void record(const QString &deviceId, qint64 amount, const QString &reason, const QString &reference);

    Database &m_database;
    WallClock m_clock;
};
