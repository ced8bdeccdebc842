// SPDX-License-Identifier: MIT
#include "store/Migrations.h"

using namespace Qt::StringLiterals;

const QList<QStringList> &migrations()
{
    static const QList<QStringList> all{
        {
            u"CREATE TABLE devices (id TEXT PRIMARY KEY, secret_hash {blob} NOT NULL, platform TEXT NOT NULL,"
            " created_at BIGINT NOT NULL, balance BIGINT NOT NULL DEFAULT 0 CHECK (balance >= 0),"
            " unmetered INTEGER NOT NULL DEFAULT 0)"_s,
            u"CREATE TABLE ledger (id {serial}, device_id TEXT NOT NULL REFERENCES devices (id),"
            " amount BIGINT NOT NULL, reason TEXT NOT NULL, created_at BIGINT NOT NULL)"_s,
            u"CREATE INDEX ledger_by_device ON ledger (device_id)"_s,
            u"CREATE INDEX ledger_by_reason ON ledger (reason, created_at)"_s,
            u"CREATE TABLE checkout_links (token_hash {blob} PRIMARY KEY,"
            " device_id TEXT NOT NULL REFERENCES devices (id), expires_at BIGINT NOT NULL, used_at BIGINT)"_s,
        },
        {
            // The sum of the device's holds: tokens that running transcriptions will cost when they are delivered.
            u"ALTER TABLE devices ADD COLUMN held BIGINT NOT NULL DEFAULT 0 CHECK (held >= 0)"_s,
            u"ALTER TABLE devices ADD COLUMN revoked_at BIGINT"_s,
            u"CREATE INDEX devices_by_age ON devices (created_at, id)"_s,
            u"ALTER TABLE ledger ADD COLUMN reference TEXT NOT NULL DEFAULT ''"_s,
            u"DROP INDEX ledger_by_reason"_s,
            u"CREATE TABLE holds (id TEXT PRIMARY KEY, device_id TEXT NOT NULL REFERENCES devices (id),"
            " amount BIGINT NOT NULL, delivering INTEGER NOT NULL DEFAULT 0, expires_at BIGINT NOT NULL)"_s,
            u"CREATE INDEX holds_by_device ON holds (device_id)"_s,
            u"CREATE TABLE daily_grants (day BIGINT PRIMARY KEY, granted BIGINT NOT NULL)"_s,
            u"INSERT INTO daily_grants SELECT created_at / 86400, SUM(amount) FROM ledger WHERE reason = 'grant'"
            " GROUP BY created_at / 86400"_s,
            u"CREATE TABLE purchases (id TEXT PRIMARY KEY, device_id TEXT NOT NULL REFERENCES devices (id),"
            " tokens BIGINT NOT NULL, price BIGINT NOT NULL, currency TEXT NOT NULL, created_at BIGINT NOT NULL,"
            " credited_at BIGINT)"_s,
            u"CREATE TABLE payment_events (id TEXT PRIMARY KEY, received_at BIGINT NOT NULL)"_s,
        },
        {
            // What is in it lasts for minutes, so a crash of PostgreSQL may empty it. In milliseconds since the epoch.
            u"CREATE {unlogged} TABLE token_buckets (owner TEXT PRIMARY KEY, full_at BIGINT NOT NULL)"_s,
            // Whose entries add up to which balance is read from the index alone.
            u"CREATE INDEX ledger_sums ON ledger (device_id, id, amount)"_s,
            u"DROP INDEX ledger_by_device"_s,
            // The provider's name for what was paid, by which it reports a refund.
            u"ALTER TABLE purchases ADD COLUMN payment TEXT NOT NULL DEFAULT ''"_s,
            u"ALTER TABLE purchases ADD COLUMN taken_back BIGINT NOT NULL DEFAULT 0"_s, // tokens
            u"CREATE INDEX purchases_by_payment ON purchases (payment)"_s,
        },
    };
    return all;
}
