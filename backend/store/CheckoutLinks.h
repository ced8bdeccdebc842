// SPDX-License-Identifier: MIT
#pragma once

#include "store/Ledger.h"

/// Links to the page on which a device's tokens are bought: good for one purchase, for half an hour.
class CheckoutLinks {
public:
    CheckoutLinks(Database &database, Ledger &ledger, WallClock clock);

    /// A new link's token; only its hash is kept.
    QByteArray add(const QString &deviceId);

    /// Whether the link can still be used.
    bool isValid(const QByteArray &token);

    /// Uses the link up and credits its device in one transaction. Returns the new balance, or nothing, without any
    /// effect, when the link is unknown, expired or used.
    std::optional<qint64> redeem(const QByteArray &token, qint64 tokens);

private:
    Database &m_database;
    Ledger &m_ledger;
    WallClock m_clock;
};
