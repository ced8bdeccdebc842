// SPDX-License-Identifier: MIT
#include "store/DeviceStore.h"

#include "support/Secrets.h"

#include <utility>

namespace {

constexpr qint64 secondsPerDay = 86400;

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
    m_database.execute(
        QStringLiteral("INSERT INTO devices (id, secret_hash, platform, created_at) VALUES (?, ?, ?, ?)"),
        {registration.deviceId, hashOfSecret(secret), platform, now});
    if (m_policy.freeTokens > 0) {
        const auto granted = m_policy.dailyPool ? m_ledger.grantedSince(now - now % secondsPerDay) : 0;
        registration.freeGrantMissed = m_policy.dailyPool && granted + m_policy.freeTokens > *m_policy.dailyPool;
        if (!registration.freeGrantMissed) {
            m_ledger.credit(registration.deviceId, m_policy.freeTokens, QStringLiteral("grant"));
        }
    }
    transaction.commit();
    return registration;
}

std::optional<Device> DeviceStore::authenticate(const QByteArray &credential)
{
    const auto dot = credential.indexOf('.');
    const auto id = QString::fromUtf8(credential.first(std::max<qsizetype>(dot, 0)));
    const auto hash = hashOfSecret(credential.sliced(dot + 1));
    auto row =
        m_database.execute(QStringLiteral("SELECT secret_hash, balance, unmetered FROM devices WHERE id = ?"), {id});
    if (!row.next() || !equalInConstantTime(row.value(0).toByteArray(), hash)) {
        return std::nullopt;
    }
    return Device{id, row.value(1).toLongLong(), row.value(2).toBool()};
}
