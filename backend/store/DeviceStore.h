// SPDX-License-Identifier: MIT
#pragma once

#include "store/Ledger.h"

struct GrantPolicy {
    qint64 freeTokens = 3600;             ///< for each new device
    std::optional<qint64> dailyPool = {}; ///< of all free tokens of one day (UTC); unlimited when absent
};

struct Registration {
    QString deviceId;
    QString secret; ///< told once; only its hash is kept
    bool freeGrantMissed = false;
};

struct Device {
    QString id;
    qint64 balance = 0;
    bool unmetered = false;
};

/// The devices that may use this server. No identifier and no secret holds a ".".
class DeviceStore {
public:
    DeviceStore(Database &database, Ledger &ledger, GrantPolicy policy, WallClock clock);

    /// A new device with its free tokens, as long as the day's pool has enough of them.
    Registration add(const QString &platform);

    /// The device of "<deviceId>.<secret>", or nothing; what is wrong takes no different time to find out.
    std::optional<Device> authenticate(const QByteArray &credential);

private:
    Database &m_database;
    Ledger &m_ledger;
    GrantPolicy m_policy;
    WallClock m_clock;
};
