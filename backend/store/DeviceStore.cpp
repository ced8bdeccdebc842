// SPDX-License-Identifier: MIT
#include "store/DeviceStore.h"

#include "support/Secrets.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsPerDay = 86400;

QString recordColumns()
{
    return u"SELECT id, platform, created_at, balance, held, unmetered, revoked_at FROM devices"_s;
}

DeviceRecord recordOf(const Row &row)
{
    return {row[0].toString(),   row[1].toString(), row[2].toLongLong(), row[3].toLongLong(),
            row[4].toLongLong(), row[5].toBool(),   !row[6].isNull()};
}

} // namespace

DeviceStore::DeviceStore(Database &database, Ledger &ledger, GrantPolicy policy, WallClock clock)
    : m_database(database), m_ledger(ledger), m_policy(policy), m_clock(std::move(clock))
{
}

Registration DeviceStore::add(const QString &platform)
{
    const auto secret = randomToken(32);
    Registration registration{QString::fromLatin1(randomToken(16)), QString::fromLatin1(secret)};
    const auto now = m_clock();

    Transaction transaction(m_database);
    m_database.change(u"INSERT INTO devices (id, secret_hash, platform, created_at) VALUES (?, ?, ?, ?)"_s,
                      {registration.deviceId, hashOfSecret(secret), platform, now});
    if (m_policy.freeTokens > 0) {
        registration.freeGrantMissed = !takeFromPool(now);
        if (!registration.freeGrantMissed) {
            m_ledger.credit(registration.deviceId, m_policy.freeTokens, u"grant"_s);
        }
    }
    transaction.commit();
    return registration;
}

bool DeviceStore::takeFromPool(qint64 now)
{
    const auto day = now / secondsPerDay;
    m_database.change(u"INSERT INTO daily_grants (day, granted) VALUES (?, 0) ON CONFLICT (day) DO NOTHING"_s, {day});
    auto sql = u"UPDATE daily_grants SET granted = granted + ? WHERE day = ?"_s;
    Row values{m_policy.freeTokens, day};
    if (m_policy.dailyPool) {
        sql += u" AND granted + ? <= ?"_s;
        values.append({m_policy.freeTokens, *m_policy.dailyPool});
    }
    return m_database.change(sql, values) == 1;
}

std::optional<Device> DeviceStore::authenticate(const QByteArray &credential)
{
    const auto dot = credential.indexOf('.');
    const auto id = QString::fromUtf8(credential.first(std::max<qsizetype>(dot, 0)));
    const auto hash = hashOfSecret(credential.sliced(dot + 1));
    const auto row =
        m_database.first(u"SELECT secret_hash, balance, held, unmetered, revoked_at FROM devices WHERE id = ?"_s, {id});
    if (!row || !equalInConstantTime(row->at(0).toByteArray(), hash) || !row->at(4).isNull()) {
        return std::nullopt;
    }
    const auto balance = row->at(2).toLongLong() == 0 ? row->at(1).toLongLong() : m_ledger.balance(id);
    return Device{id, balance, row->at(3).toBool()};
}

QList<DeviceRecord> DeviceStore::list(const QString &after, int most)
{
    QList<DeviceRecord> records;
    const auto rows =
        after.isEmpty()
            ? m_database.select(recordColumns() + u" ORDER BY created_at, id LIMIT ?"_s, {most})
            : m_database.select(recordColumns() + u" WHERE (created_at, id) > (SELECT created_at, id FROM devices"
                                                  " WHERE id = ?) ORDER BY created_at, id LIMIT ?"_s,
                                {after, most});
    for (const auto &row : rows) {
        records.append(recordOf(row));
    }
    return records;
}

qint64 DeviceStore::count()
{
    return m_database.first(u"SELECT COUNT(*) FROM devices"_s)->at(0).toLongLong();
}

std::optional<DeviceRecord> DeviceStore::find(const QString &id)
{
    const auto row = m_database.first(recordColumns() + u" WHERE id = ?"_s, {id});
    return row ? std::optional(recordOf(*row)) : std::nullopt;
}

bool DeviceStore::setUnmetered(const QString &id, bool unmetered)
{
    return m_database.change(u"UPDATE devices SET unmetered = ? WHERE id = ?"_s, {unmetered ? 1 : 0, id}) == 1;
}

bool DeviceStore::revoke(const QString &id)
{
    return m_database.change(u"UPDATE devices SET revoked_at = COALESCE(revoked_at, ?) WHERE id = ?"_s,
                             {m_clock(), id}) == 1;
}
