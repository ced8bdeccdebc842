// SPDX-License-Identifier: MIT
#pragma once

#include "store/Ledger.h"
#include "store/Payment.h"

/// Something to buy.
struct Pack {
    qint64 tokens = 0;
    qint64 price = 0; ///< in the currency's smallest unit, such as cents
};

struct Purchase {
    QString id;
    QString deviceId;
    qint64 tokens = 0;
};

/// Links to the page on which a device's tokens are bought, good for one purchase within half an hour, and the
/// purchases made with them.
class Checkout {
public:
    Checkout(Database &database, Ledger &ledger, WallClock clock);

    /// Makes a link and returns its token, of which only the hash is kept.
    QByteArray addLink(const QString &deviceId);

    /// Tells whether the link can still be used.
    bool isValid(const QByteArray &token);

    /// Uses the link up for a purchase that is not paid yet. Nothing when the link is unknown, expired or used.
    std::optional<Purchase> begin(const QByteArray &token, const Pack &pack, const QString &currency);

    /// Undoes begin() when the payment could not be asked for.
    void abandon(const QByteArray &token, const Purchase &purchase);

    /// Credits the purchase and returns its device's new balance; at most once, whatever is reported how often. Nothing
    /// when there is no such purchase, it was credited before, or it costs something else than was paid. `payment` is
    /// absent where nothing is paid.
    std::optional<qint64> complete(const QString &purchaseId, const std::optional<Payment> &payment = {});

    /// Takes back what the purchase has brought, as far as the device still has it; the ledger tells how much that is
    /// not. Tokens that were taken, or nothing when no purchase was paid so, or the event has been reported before.
    std::optional<qint64> takeBack(const Refund &refund);

private:
    bool isNew(const QString &eventId);

    Database &m_database;
    Ledger &m_ledger;
    WallClock m_clock;
};
