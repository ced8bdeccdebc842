// SPDX-License-Identifier: MIT
#include "store/Checkout.h"

#include "support/Secrets.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Links live twice as long, in seconds, as the desktop program watches for a purchase.
constexpr qint64 lifetime = 1800;

} // namespace

Checkout::Checkout(Database &database, Ledger &ledger, WallClock clock)
    : m_database(database), m_ledger(ledger), m_clock(std::move(clock))
{
}

QByteArray Checkout::addLink(const QString &deviceId)
{
    auto token = randomToken(32);
    const auto now = m_clock();
    Transaction transaction(m_database);
    m_database.change(u"DELETE FROM checkout_links WHERE expires_at <= ?"_s, {now});
    m_database.change(u"INSERT INTO checkout_links (token_hash, device_id, expires_at) VALUES (?, ?, ?)"_s,
                      {hashOfSecret(token), deviceId, now + lifetime});
    transaction.commit();
    return token;
}

bool Checkout::isValid(const QByteArray &token)
{
    return m_database
        .first(u"SELECT 1 FROM checkout_links WHERE token_hash = ? AND used_at IS NULL AND expires_at > ?"_s,
               {hashOfSecret(token), m_clock()})
        .has_value();
}

std::optional<Purchase> Checkout::begin(const QByteArray &token, const Pack &pack, const QString &currency)
{
    const auto now = m_clock();
    Transaction transaction(m_database);
    const auto link = m_database.first(u"UPDATE checkout_links SET used_at = ?"
                                       " WHERE token_hash = ? AND used_at IS NULL AND expires_at > ?"
                                       " RETURNING device_id"_s,
                                       {now, hashOfSecret(token), now});
    if (!link) {
        return std::nullopt;
    }
    Purchase purchase{QString::fromLatin1(randomToken(16)), link->at(0).toString(), pack.tokens};
    m_database.change(u"INSERT INTO purchases (id, device_id, tokens, price, currency, created_at)"
                      " VALUES (?, ?, ?, ?, ?, ?)"_s,
                      {purchase.id, purchase.deviceId, pack.tokens, pack.price, currency, now});
    transaction.commit();
    return purchase;
}

void Checkout::abandon(const QByteArray &token, const Purchase &purchase)
{
    Transaction transaction(m_database);
    m_database.change(u"DELETE FROM purchases WHERE id = ? AND credited_at IS NULL"_s, {purchase.id});
    m_database.change(u"UPDATE checkout_links SET used_at = NULL WHERE token_hash = ?"_s, {hashOfSecret(token)});
    transaction.commit();
}

std::optional<qint64> Checkout::complete(const QString &purchaseId, const std::optional<Payment> &payment)
{
    Transaction transaction(m_database);
    if (payment && !isNew(payment->eventId)) {
        return std::nullopt;
    }
    const auto purchase =
        m_database.first(u"UPDATE purchases SET credited_at = ?, payment = ?"
                         " WHERE id = ? AND credited_at IS NULL"
                         " RETURNING device_id, tokens, price, currency"_s,
                         {m_clock(), payment && !payment->intent.isNull() ? payment->intent : u""_s, purchaseId});
    if (!purchase || (payment && (purchase->at(2).toLongLong() != payment->amount ||
                                  purchase->at(3).toString() != payment->currency))) {
        return std::nullopt;
    }
    const auto deviceId = purchase->at(0).toString();
    m_ledger.credit(deviceId, purchase->at(1).toLongLong(), u"purchase"_s, purchaseId);
    transaction.commit();
    return m_ledger.balance(deviceId);
}

std::optional<qint64> Checkout::takeBack(const Refund &refund)
{
    Transaction transaction(m_database);
    // It begins with a change, which makes another report of the same payment wait until the transaction's end.
    const auto purchase = m_database.first(u"UPDATE purchases SET taken_back = taken_back"
                                           " WHERE payment = ? AND credited_at IS NOT NULL"
                                           " RETURNING id, device_id, tokens, price, taken_back"_s,
                                           {refund.intent});
    if (!isNew(refund.eventId) || !purchase) {
        return std::nullopt;
    }
    const auto id = purchase->at(0).toString();
    const auto deviceId = purchase->at(1).toString();
    const auto tokens = purchase->at(2).toDouble();
    const auto share = std::clamp(static_cast<double>(refund.amount) / purchase->at(3).toDouble(), 0.0, 1.0);
    const auto owed = static_cast<qint64>(std::ceil(tokens * share)) - purchase->at(4).toLongLong();
    if (owed <= 0) {
        return std::nullopt;
    }
    m_database.change(u"UPDATE purchases SET taken_back = taken_back + ? WHERE id = ?"_s, {owed, id});
    const auto taken = m_ledger.takeUpTo(deviceId, owed, u"refund"_s, id);
    transaction.commit();
    return taken;
}

bool Checkout::isNew(const QString &eventId)
{
    return m_database.change(u"INSERT INTO payment_events (id, received_at) VALUES (?, ?)"
                             " ON CONFLICT (id) DO NOTHING"_s,
                             {eventId, m_clock()}) == 1;
}
