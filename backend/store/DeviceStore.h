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
    qint64 balance = 0; ///< as Ledger::balance() tells it
    bool unmetered = false;
};

/// What the operator sees of a device.
struct DeviceRecord {
    QString id;
    QString platform;
    qint64 createdAt = 0;
    qint64 balance = 0; ///< the sum of its ledger entries
    qint64 held = 0;    ///< of that, for transcriptions under way
    bool unmetered = false;
    bool revoked = false;
};

/// The devices that may use this server. No identifier and no secret holds a ".".
class DeviceStore {
public:
    DeviceStore(Database &database, Ledger &ledger, GrantPolicy policy, WallClock clock);

    /// A new device with its free tokens, as long as the day's pool has enough of them.
    Registration add(const QString &platform);

    /// The device of "<deviceId>.<secret>", or nothing; what is wrong takes no different time to find out.
    std::optional<Device> authenticate(const QByteArray &credential);

    /// Lists up to `most` devices in the order of their registration, after the device `after` (empty: from the first).
    QList<DeviceRecord> list(const QString &after, int most);
    qint64 count();
    std::optional<DeviceRecord> find(const QString &id);

    /// Both return false when there is no such device.
    bool setUnmetered(const QString &id, bool unmetered);
    bool revoke(const QString &id); ///< its credential is refused from now on; there is no way back

private:
    bool takeFromPool(qint64 now);

    Database &m_database;
    Ledger &m_ledger;
    GrantPolicy m_policy;
    WallClock m_clock;
};
