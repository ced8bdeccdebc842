// SPDX-License-Identifier: MIT
#include "store/Ledger.h"

#include <utility>

Ledger::Ledger(Database &database, WallClock clock) : m_database(database), m_clock(std::move(clock)) {}

qint64 Ledger::balance(const QString &deviceId)
{
    auto row = m_database.execute(QStringLiteral("SELECT balance FROM devices WHERE id = ?"), {deviceId});
    if (!row.next()) {
        throw StoreError("there is no such device");
    }
    return row.value(0).toLongLong();
}

std::optional<Ledger::Charge> Ledger::charge(const QString &deviceId, qint64 tokens)
{
    Transaction transaction(m_database);
    // The condition and the subtraction are one statement, so simultaneous charges can't both pass it.
    const auto updated = m_database.execute(QStringLiteral("UPDATE devices SET balance = balance - ?"
                                                           " WHERE id = ? AND unmetered = 0 AND balance >= ?"),
                                            {tokens, deviceId, tokens});
    Charge charge;
    if (updated.numRowsAffected() == 1) {
        record(deviceId, -tokens, QStringLiteral("transcription"));
        charge.taken = tokens;
    } else {
        auto row = m_database.execute(QStringLiteral("SELECT unmetered FROM devices WHERE id = ?"), {deviceId});
        if (!row.next() || !row.value(0).toBool()) {
            return std::nullopt;
        }
    }
    charge.balance = balance(deviceId);
    transaction.commit();
    return charge;
}

void Ledger::refund(const QString &deviceId, const Charge &charge)
{
    if (charge.taken == 0) {
        return;
    }
    Transaction transaction(m_database);
    credit(deviceId, charge.taken, QStringLiteral("refund"));
    transaction.commit();
}

qint64 Ledger::grantedSince(qint64 since)
{
    auto row = m_database.execute(
        QStringLiteral("SELECT COALESCE(SUM(amount), 0) FROM ledger WHERE reason = 'grant' AND created_at >= ?"),
        {since});
    return row.next() ? row.value(0).toLongLong() : 0;
}

void Ledger::credit(const QString &deviceId, qint64 tokens, const QString &reason)
{
    m_database.execute(QStringLiteral("UPDATE devices SET balance = balance + ? WHERE id = ?"), {tokens, deviceId});
    record(deviceId, tokens, reason);
}

void Ledger::record(const QString &deviceId, qint64 amount, const QString &reason)
{
    m_database.execute(QStringLiteral("INSERT INTO ledger (device_id, amount, reason, created_at) VALUES (?, ?, ?, ?)"),
                       {deviceId, amount, reason, m_clock()});
}
