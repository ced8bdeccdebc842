// SPDX-License-Identifier: MIT
#include "store/CheckoutLinks.h"

#include "support/Secrets.h"

#include <utility>

namespace {

// Twice as long as the desktop program watches for a purchase.
constexpr qint64 lifetime = 1800;

} // namespace

CheckoutLinks::CheckoutLinks(Database &database, Ledger &ledger, WallClock clock)
    : m_database(database), m_ledger(ledger), m_clock(std::move(clock))
{
}

QByteArray CheckoutLinks::add(const QString &deviceId)
{
    auto token = randomToken(32);
    const auto now = m_clock();
    Transaction transaction(m_database);
    m_database.execute(QStringLiteral("DELETE FROM checkout_links WHERE expires_at <= ?"), {now});
    m_database.execute(
        QStringLiteral("INSERT INTO checkout_links (token_hash, device_id, expires_at) VALUES (?, ?, ?)"),
        {hashOfSecret(token), deviceId, now + lifetime});
    transaction.commit();
    return token;
}

bool CheckoutLinks::isValid(const QByteArray &token)
{
    auto row = m_database.execute(
        QStringLiteral("SELECT 1 FROM checkout_links WHERE token_hash = ? AND used_at IS NULL AND expires_at > ?"),
        {hashOfSecret(token), m_clock()});
    return row.next();
}

std::optional<qint64> CheckoutLinks::redeem(const QByteArray &token, qint64 tokens)
{
    const auto hash = hashOfSecret(token);
    const auto now = m_clock();
    Transaction transaction(m_database);
    const auto used = m_database.execute(QStringLiteral("UPDATE checkout_links SET used_at = ?"
                                                        " WHERE token_hash = ? AND used_at IS NULL AND expires_at > ?"),
                                         {now, hash, now});
    if (used.numRowsAffected() != 1) {
        return std::nullopt;
    }
    auto row = m_database.execute(QStringLiteral("SELECT device_id FROM checkout_links WHERE token_hash = ?"), {hash});
    if (!row.next()) {
        throw StoreError("a checkout link vanished");
    }
    const auto deviceId = row.value(0).toString();
    m_ledger.credit(deviceId, tokens, QStringLiteral("purchase"));
    const auto balance = m_ledger.balance(deviceId);
    transaction.commit();
    return balance;
}
