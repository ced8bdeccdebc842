// SPDX-License-Identifier: MIT
#include "store/Ledger.h"

#include "support/Secrets.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

Ledger::Ledger(Database &database, WallClock clock) : m_database(database), m_clock(std::move(clock)) {}

qint64 Ledger::balance(const QString &deviceId)
{
    const auto row = m_database.first(u"SELECT balance - CAST(COALESCE((SELECT SUM(amount) FROM holds"
                                      " WHERE device_id = devices.id AND delivering = 1 AND expires_at > ?), 0)"
                                      " AS BIGINT) FROM devices WHERE id = ?"_s,
                                      {m_clock(), deviceId});
    if (!row) {
        throw StoreError("there is no such device");
    }
    return row->at(0).toLongLong();
}

std::optional<Ledger::Hold> Ledger::hold(const QString &deviceId, qint64 tokens)
{
    Transaction transaction(m_database, Transaction::Kind::Volatile);
    lapse(deviceId);
    Hold hold{{}, deviceId, tokens};
    // The condition and the addition are one statement, so simultaneous holds can't both pass it.
    if (m_database.change(u"UPDATE devices SET held = held + ?"
                          " WHERE id = ? AND unmetered = 0 AND balance - held >= ?"_s,
                          {tokens, deviceId, tokens}) == 1) {
        hold.id = QString::fromLatin1(randomToken(16));
        m_database.change(u"INSERT INTO holds (id, device_id, amount, expires_at) VALUES (?, ?, ?, ?)"_s,
                          {hold.id, deviceId, tokens, m_clock() + holdLifetime});
    } else {
        const auto row = m_database.first(u"SELECT unmetered FROM devices WHERE id = ?"_s, {deviceId});
        if (!row || !row->at(0).toBool()) {
            return std::nullopt;
        }
    }
    transaction.commit();
    return hold;
}

std::optional<qint64> Ledger::deliver(Hold &hold)
{
    const auto mark = [&] {
        Transaction transaction(m_database, Transaction::Kind::Volatile);
        const auto found = m_database.change(u"UPDATE holds SET delivering = 1, expires_at = ? WHERE id = ?"_s,
                                             {m_clock() + holdLifetime, hold.id}) == 1;
        transaction.commit();
        return found;
    };
    if (!hold.id.isEmpty() && !mark()) {
        auto another = this->hold(hold.deviceId, hold.amount);
        if (!another) {
            return std::nullopt;
        }
        hold = *another;
        mark();
    }
    return balance(hold.deviceId);
}

qint64 Ledger::settle(const Hold &hold)
{
    if (hold.id.isEmpty()) {
        return 0;
    }
    Transaction transaction(m_database);
    // Whoever removes the hold may take its tokens, so they are taken once.
    const auto isHeld = m_database.change(u"DELETE FROM holds WHERE id = ?"_s, {hold.id}) == 1;
    if (isHeld) {
        m_database.change(u"UPDATE devices SET balance = balance - ?, held = held - ? WHERE id = ?"_s,
                          {hold.amount, hold.amount, hold.deviceId});
        record(hold.deviceId, -hold.amount, u"transcription"_s, {});
    }
    transaction.commit();
    return isHeld ? hold.amount : 0;
}

void Ledger::release(const Hold &hold)
{
    if (hold.id.isEmpty()) {
        return;
    }
    Transaction transaction(m_database, Transaction::Kind::Volatile);
    if (m_database.change(u"DELETE FROM holds WHERE id = ?"_s, {hold.id}) == 1) {
        m_database.change(u"UPDATE devices SET held = held - ? WHERE id = ?"_s, {hold.amount, hold.deviceId});
    }
    transaction.commit();
}

void Ledger::lapse(const QString &deviceId)
{
    const auto lapsed = m_database.select(
        u"DELETE FROM holds WHERE device_id = ? AND expires_at <= ? RETURNING amount"_s, {deviceId, m_clock()});
    qint64 sum = 0;
    for (const auto &row : lapsed) {
        sum += row[0].toLongLong();
    }
    if (sum > 0) {
        m_database.change(u"UPDATE devices SET held = held - ? WHERE id = ?"_s, {sum, deviceId});
    }
}

bool Ledger::credit(const QString &deviceId, qint64 tokens, const QString &reason, const QString &reference)
{
    if (tokens < -mostTokens || tokens > mostTokens ||
        m_database.change(u"UPDATE devices SET balance = balance + ?"
                          " WHERE id = ? AND balance - held + ? >= 0 AND balance + ? <= ?"_s,
                          {tokens, deviceId, tokens, tokens, mostTokens}) != 1) {
        return false;
    }
    record(deviceId, tokens, reason, reference);
    return true;
}

qint64 Ledger::takeUpTo(const QString &deviceId, qint64 tokens, const QString &reason, const QString &reference)
{
    // It begins with a change, which makes others wait until the transaction's end.
    const auto row =
        m_database.first(u"UPDATE devices SET held = held WHERE id = ? RETURNING balance - held"_s, {deviceId});
    const auto taken = std::min(row ? row->at(0).toLongLong() : 0, tokens);
    const auto missing = taken < tokens ? u" (%1 missing)"_s.arg(tokens - taken) : QString();
    m_database.change(u"UPDATE devices SET balance = balance - ? WHERE id = ?"_s, {taken, deviceId});
    record(deviceId, -taken, reason, reference + missing);
    return taken;
}

QList<LedgerEntry> Ledger::entries(const QString &deviceId, qint64 after, int most)
{
    auto sql = u"SELECT id, device_id, amount, reason, reference, created_at FROM ledger WHERE id > ?"_s;
    Row values{after};
    if (!deviceId.isEmpty()) {
        sql += u" AND device_id = ?"_s;
        values.append(deviceId);
    }
    values.append(most);
    QList<LedgerEntry> entries;
    for (const auto &row : m_database.select(sql + u" ORDER BY id LIMIT ?"_s, values)) {
        entries.append({row[0].toLongLong(), row[1].toString(), row[2].toLongLong(), row[3].toString(),
                        row[4].toString(), row[5].toLongLong()});
    }
    return entries;
}

QStringList Ledger::unexplained()
{
    QStringList ids;
    for (const auto &row :
         m_database.select(u"SELECT id FROM devices LEFT JOIN"
                           " (SELECT device_id, SUM(amount) AS entries FROM ledger GROUP BY device_id)"
                           " AS sums ON device_id = id WHERE balance <> COALESCE(entries, 0)"
                           " ORDER BY id"_s)) {
        ids.append(row[0].toString());
    }
    return ids;
}

void Ledger::record(const QString &deviceId, qint64 amount, const QString &reason, const QString &reference)
{
    m_database.change(u"INSERT INTO ledger (device_id, amount, reason, reference, created_at) VALUES (?, ?, ?, ?, ?)"_s,
                      {deviceId, amount, reason, reference.isNull() ? u""_s : reference, m_clock()});
}
