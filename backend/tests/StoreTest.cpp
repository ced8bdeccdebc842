// SPDX-License-Identifier: MIT
#include "store/Migrations.h"
#include "store/StoreThreads.h"
#include "support/DatabaseLine.h"
#include "support/TestDatabase.h"

#include <QDir>
#include <QSqlError>
#include <QUrl>
#include <boost/asio/use_future.hpp>
#include <gmock/gmock.h>

#include <barrier>
#include <limits>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class StoreFixture {
protected:
    explicit StoreFixture(DatabaseKind kind) : database(kind) {}

    std::unique_ptr<Store> open(GrantPolicy policy = {}) const
    {
        return std::make_unique<Store>(database.location(), policy, [this] { return now; });
    }

    static QByteArray credential(const Registration &device)
    {
        return (device.deviceId + QLatin1Char('.') + device.secret).toLatin1();
    }

    /// Past what brings the tables up to date.
    void runRaw(const QStringList &statements) const
    {
        const auto isPostgreSql = Database::isPostgreSql(database.location());
        const QUrl url(database.location());
        {
            auto connection = QSqlDatabase::addDatabase(isPostgreSql ? u"QPSQL"_s : u"QSQLITE"_s, u"raw"_s);
            connection.setDatabaseName(isPostgreSql ? url.path().mid(1) : database.location());
            connection.setUserName(url.userName());
            connection.setConnectOptions(isPostgreSql ? url.query() : QString());
            EXPECT_TRUE(connection.open());
            for (auto statement : statements) {
                statement.replace(u"{blob}"_s, isPostgreSql ? u"BYTEA"_s : u"BLOB"_s);
                statement.replace(u"{serial}"_s, isPostgreSql ? u"BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY"_s
                                                              : u"INTEGER PRIMARY KEY"_s);
                QSqlQuery query(connection);
                EXPECT_TRUE(query.exec(statement)) << query.lastError().text().toStdString();
            }
        }
        QSqlDatabase::removeDatabase(u"raw"_s);
    }

    TestDatabase database;
    qint64 now = 1'700'000'000;
};

class StoreTest : public StoreFixture, public testing::TestWithParam<DatabaseKind> {
protected:
    StoreTest() : StoreFixture(GetParam()) {}
};

/// What only a server can do, or fail to do.
class PostgreSqlStoreTest : public StoreFixture, public testing::Test {
protected:
    PostgreSqlStoreTest() : StoreFixture(DatabaseKind::PostgreSql) {}
};

INSTANTIATE_ON_BOTH_DATABASES(StoreTest);

} // namespace

TEST_P(StoreTest, KnowsADeviceByItsWholeCredentialUntilItIsRevoked)
{
    const auto device = open()->devices.add(u"linux"_s);
    const auto store = open(); // as after a restart
    const auto other = store->devices.add(u"linux"_s);
    const auto good = credential(device);
    ASSERT_TRUE(store->devices.authenticate(good));
    EXPECT_EQ(store->devices.authenticate(good)->balance, 3600);
    EXPECT_EQ(good.count('.'), 1);
    const QList<QByteArray> wrong{QByteArray(),
                                  QByteArray("."),
                                  device.deviceId.toLatin1(),
                                  device.deviceId.toLatin1() + '.',
                                  '.' + device.secret.toLatin1(),
                                  good + 'x',
                                  good.chopped(1),
                                  (device.deviceId + QLatin1Char('.') + other.secret).toLatin1()};
    for (const auto &attempt : wrong) {
        EXPECT_FALSE(store->devices.authenticate(attempt)) << attempt.toStdString();
    }
    EXPECT_TRUE(store->devices.revoke(device.deviceId));
    EXPECT_FALSE(store->devices.authenticate(good));
    EXPECT_FALSE(store->devices.revoke(u"nobody"_s));
}

TEST_P(StoreTest, KeepsNoSecret)
{
    const auto store = open();
    const auto device = store->devices.add(u"linux"_s);
    const auto link = store->checkout.addLink(device.deviceId);
    QByteArray kept;
    if (GetParam() == DatabaseKind::PostgreSql) {
        for (const auto *const table : {"devices", "checkout_links"}) {
            for (const auto &row : store->database.select(u"SELECT * FROM "_s + QLatin1String(table))) {
                for (const auto &value : row) {
                    kept += value.toByteArray();
                }
            }
        }
    }
    for (const auto &entry : QDir(database.folder()).entryInfoList(QDir::Files)) {
        QFile file(entry.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        kept += file.readAll();
        EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0) << entry.fileName().toStdString();
    }
    EXPECT_TRUE(kept.contains(device.deviceId.toLatin1())); // so it is where the device is kept
    EXPECT_FALSE(kept.contains(device.secret.toLatin1()));
    EXPECT_FALSE(kept.contains(link));
}

TEST_P(StoreTest, TakesWhatWasHeldOnceItIsDelivered)
{
    const auto store = open({.freeTokens = 10});
    const auto id = store->devices.add(u"linux"_s).deviceId;
    auto &ledger = store->ledger;
    auto delivered = ledger.hold(id, 7);
    const auto failed = ledger.hold(id, 3);
    ASSERT_TRUE(delivered && failed);
    EXPECT_FALSE(ledger.hold(id, 1));
    EXPECT_EQ(ledger.balance(id), 10); // nothing is taken yet
    now += 100;
    EXPECT_EQ(ledger.deliver(*delivered), 3);
    now += Ledger::holdLifetime - 1;
    EXPECT_EQ(ledger.balance(id), 3); // what the reply said
    ledger.settle(*delivered);
    ledger.settle(*delivered);
    ledger.release(*delivered);
    ledger.release(*failed);
    EXPECT_EQ(ledger.balance(id), 3);
    EXPECT_TRUE(ledger.hold(id, 3));
    EXPECT_THAT(ledger.unexplained(), testing::IsEmpty());
    QStringList entries;
    for (const auto &entry : ledger.entries(id, 0, 10)) {
        entries.append(u"%1 %2"_s.arg(entry.reason).arg(entry.amount));
    }
    EXPECT_EQ(entries, (QStringList{u"grant 10"_s, u"transcription -7"_s}));
}

TEST_P(StoreTest, ForgetsTheHoldsOfAProcessThatDied)
{
    const auto store = open({.freeTokens = 10});
    const auto id = store->devices.add(u"linux"_s).deviceId;
    auto slow = store->ledger.hold(id, 6);
    auto dead = store->ledger.hold(id, 4);
    store->ledger.deliver(*dead);
    EXPECT_FALSE(store->ledger.hold(id, 10));
    now += Ledger::holdLifetime;
    const auto other = store->ledger.hold(id, 5);
    ASSERT_TRUE(other);
    EXPECT_EQ(store->ledger.deliver(*slow), std::nullopt); // it would not fit in any more
    store->ledger.release(*other);
    EXPECT_EQ(store->ledger.deliver(*slow), 4); // and now it does
    store->ledger.settle(*slow);
    EXPECT_EQ(store->devices.find(id)->balance, 4);
    EXPECT_EQ(store->devices.find(id)->held, 0);
}

TEST_P(StoreTest, ChangesNoBalanceBelowWhatIsHeldAndNoneThatIsNotMetered)
{
    const auto store = open({.freeTokens = 10});
    const auto id = store->devices.add(u"linux"_s).deviceId;
    ASSERT_TRUE(store->ledger.hold(id, 7));
    EXPECT_FALSE(store->ledger.credit(id, -4, u"operator"_s));
    EXPECT_TRUE(store->ledger.credit(id, -3, u"operator"_s));
    EXPECT_FALSE(store->ledger.credit(u"nobody"_s, 1, u"operator"_s));
    for (const auto tokens :
         {Ledger::mostTokens, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()}) {
        EXPECT_FALSE(store->ledger.credit(id, tokens, u"operator"_s)) << tokens;
    }
    EXPECT_TRUE(store->ledger.credit(id, Ledger::mostTokens - 7, u"operator"_s));

    const auto free = store->devices.add(u"linux"_s).deviceId;
    EXPECT_TRUE(store->devices.setUnmetered(free, true));
    auto hold = store->ledger.hold(free, 1000);
    ASSERT_TRUE(hold);
    EXPECT_EQ(store->ledger.deliver(*hold), 10);
    store->ledger.settle(*hold);
    EXPECT_EQ(store->ledger.balance(free), 10);
    EXPECT_THAT(store->ledger.unexplained(), testing::IsEmpty());
    store->database.change(u"UPDATE devices SET balance = balance + 1 WHERE id = ?"_s, {free});
    EXPECT_EQ(store->ledger.unexplained(), QStringList{free});
}

TEST_P(StoreTest, ServesOneDeviceAndOnePoolThroughManyConnectionsAtOnce)
{
    constexpr int connections = 4;
    constexpr int attempts = 25;
    open(); // brings the tables into being
    const auto id = open({.freeTokens = 50})->devices.add(u"linux"_s).deviceId;
    std::barrier begin(connections);
    std::atomic<int> delivered = 0;
    std::atomic<int> granted = 0;
    std::vector<std::jthread> threads;
    threads.reserve(connections);
    for (int i = 0; i < connections; ++i) {
        threads.emplace_back([&] {
            const auto store = open({.freeTokens = 1, .dailyPool = 80}); // of which 50 are gone
            begin.arrive_and_wait();
            for (int attempt = 0; attempt < attempts; ++attempt) {
                if (auto hold = store->ledger.hold(id, 1)) {
                    store->ledger.deliver(*hold);
                    store->ledger.settle(*hold);
                    ++delivered;
                }
                granted += store->devices.add(u"linux"_s).freeGrantMissed ? 0 : 1;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(delivered, 50);
    EXPECT_EQ(granted, 30);
    const auto store = open();
    EXPECT_EQ(store->ledger.balance(id), 0);
    EXPECT_THAT(store->ledger.unexplained(), testing::IsEmpty());
}

TEST_F(PostgreSqlStoreTest, ConnectsAnewAfterTheConnectionWasLostAtAnyStatement)
{
    const auto device = open()->devices.add(u"linux"_s);
    for (const auto *const statement :
         {"BEGIN ISOLATION", "SET LOCAL synchronous", "UPDATE devices SET held", "COMMIT"}) {
        DatabaseLine line(database.location());
        SCOPED_TRACE(statement);
        Store store(line.location(), {}, [this] { return now; });
        line.cutAt(statement);
        EXPECT_THROW(store.ledger.hold(device.deviceId, 1), StoreError);
        line.mend();
        EXPECT_TRUE(store.devices.authenticate(credential(device)));
        EXPECT_TRUE(store.ledger.hold(device.deviceId, 1));
    }
}

TEST_F(PostgreSqlStoreTest, WaitsForADatabaseThatCantBeReached)
{
    DatabaseLine line(database.location());
    line.cutAt("");
    net::thread_pool waiting(1);
    StoreThreads stores(line.location(), {}, [this] { return now; });
    const auto add = [&] {
        const auto work = [](Store &store) { return store.devices.add(u"linux"_s).deviceId; };
        return net::co_spawn(waiting, stores.run(work), net::use_future).get();
    };
    EXPECT_THROW(add(), StoreUnavailable);
    line.mend();
    EXPECT_NE(add(), QString());
    line.cutAt("INSERT INTO devices");
    EXPECT_THROW(add(), StoreUnavailable);
    line.mend();
    EXPECT_NE(add(), QString());
}

TEST_F(PostgreSqlStoreTest, SharesTokenBucketsAmongProcesses)
{
    using namespace std::chrono_literals;
    const auto first = open();
    const auto second = open();
    EXPECT_FALSE(first->buckets.take(u"a"_s, 4h, 10h));
    EXPECT_FALSE(second->buckets.take(u"a"_s, 4h, 10h));
    EXPECT_NEAR(static_cast<double>(first->buckets.take(u"a"_s, 4h, 10h)->count()), 2 * 3600e3, 60e3);
    EXPECT_FALSE(first->buckets.take(u"b"_s, 10h, 10h));
    EXPECT_FALSE(first->buckets.take(u"a"_s, 1h, 10h)); // what was refused has taken nothing
    first->buckets.take(u"past"_s, 1ms, 10h);
    EXPECT_FALSE(open()->buckets.take(u"c"_s, 1h, 10h));
    EXPECT_EQ(first->database.select(u"SELECT * FROM token_buckets WHERE owner = 'past'"_s).size(), 0);
    first->buckets.add(u"a"_s, 10h);
    EXPECT_NEAR(static_cast<double>(second->buckets.take(u"a"_s, 1h, 10h)->count()), 10 * 3600e3, 60e3);
}

TEST_F(PostgreSqlStoreTest, LimitsAStatementUnlessItsLocationDoes)
{
    const auto limit = [](const QString &location) {
        return Database(location).first(u"SELECT current_setting('statement_timeout')"_s)->at(0).toString();
    };
    const auto ask = [this](const QString &sql) {
        Database(database.location() + u"&options=-c%20statement_timeout%3D9"_s).select(sql);
    };
    EXPECT_THROW(ask(u"SELECT pg_sleep(9)"_s), StoreUnavailable);
    try {
        ask(u"SELECT 1 / 0"_s);
        FAIL();
    } catch (const StoreError &error) {
        EXPECT_EQ(dynamic_cast<const StoreUnavailable *>(&error), nullptr) << "it will fail again";
    }
    EXPECT_EQ(limit(database.location()), u"10s"_s);
    EXPECT_EQ(limit(database.location() + u"&options=-c%20statement_timeout%3D3s"_s), u"3s"_s);
}

TEST_P(StoreTest, BringsTheFirstVersionsTablesUpToDateThroughManyConnectionsAtOnce)
{
    auto statements = migrations().first();
    statements +=
        {u"CREATE TABLE schema_version (version INTEGER NOT NULL)"_s, u"INSERT INTO schema_version VALUES (1)"_s,
         u"INSERT INTO devices VALUES ('old', 'x', 'linux', 1699999999, 60, 0)"_s,
         u"INSERT INTO ledger (device_id, amount, reason, created_at) VALUES ('old', 60, 'grant', 1699999999)"_s};
    runRaw(statements);
    constexpr int connections = 4;
    std::barrier begin(connections);
    std::atomic<int> granted = 0;
    std::vector<std::jthread> threads;
    threads.reserve(connections);
    for (int i = 0; i < connections; ++i) {
        threads.emplace_back([&] {
            begin.arrive_and_wait();
            const auto store = open({.freeTokens = 10, .dailyPool = 80}); // of which 60 are gone
            granted += store->devices.add(u"linux"_s).freeGrantMissed ? 0 : 1;
        });
    }
    threads.clear();
    EXPECT_EQ(granted, 2);
    const auto store = open();
    EXPECT_EQ(store->devices.find(u"old"_s)->balance, 60);
    EXPECT_EQ(store->ledger.entries(u"old"_s, 0, 9).size(), 1);
    EXPECT_THAT(store->ledger.unexplained(), testing::IsEmpty());
}

TEST_P(StoreTest, GrantsFreeTokensUntilTheDaysPoolIsEmpty)
{
    const auto store = open({.freeTokens = 10, .dailyPool = 25});
    QList<bool> missed;
    for (int i = 0; i < 3; ++i) {
        missed.append(store->devices.add(u"linux"_s).freeGrantMissed);
    }
    EXPECT_EQ(missed, (QList{false, false, true}));
    now += 86'400;
    EXPECT_FALSE(store->devices.add(u"linux"_s).freeGrantMissed);
    EXPECT_EQ(store->devices.list({}, 2).size(), 2);
    EXPECT_EQ(store->devices.list(store->devices.list({}, 2).last().id, 9).size(), 2);
}

TEST_P(StoreTest, SellsOncePerLinkAndCreditsOncePerPurchase)
{
    const auto store = open({.freeTokens = 0});
    auto &checkout = store->checkout;
    const auto id = store->devices.add(u"linux"_s).deviceId;
    const auto link = checkout.addLink(id);
    EXPECT_TRUE(checkout.isValid(link));
    auto purchase = checkout.begin(link, {100, 199}, u"eur"_s);
    ASSERT_TRUE(purchase);
    EXPECT_FALSE(checkout.isValid(link));
    EXPECT_FALSE(checkout.begin(link, {100, 199}, u"eur"_s));
    checkout.abandon(link, *purchase);
    EXPECT_EQ(checkout.complete(purchase->id), std::nullopt);
    purchase = checkout.begin(link, {100, 199}, u"eur"_s);
    ASSERT_TRUE(purchase);
    EXPECT_EQ(store->ledger.balance(id), 0);
    EXPECT_EQ(checkout.complete(u"unknown"_s, Payment{u"event 0"_s, 199, u"eur"_s}), std::nullopt);
    EXPECT_EQ(checkout.complete(purchase->id, Payment{u"event 1"_s, 198, u"eur"_s}), std::nullopt);
    EXPECT_EQ(checkout.complete(purchase->id, Payment{u"event 1"_s, 199, u"usd"_s}), std::nullopt);
    EXPECT_EQ(checkout.complete(purchase->id, Payment{u"event 1"_s, 199, u"eur"_s}), 100);
    EXPECT_EQ(checkout.complete(purchase->id, Payment{u"event 1"_s, 199, u"eur"_s}), std::nullopt);
    EXPECT_EQ(checkout.complete(purchase->id, Payment{u"event 2"_s, 199, u"eur"_s}), std::nullopt);

    const auto late = checkout.addLink(id);
    now += 1800;
    EXPECT_FALSE(checkout.isValid(late));
    EXPECT_FALSE(checkout.begin(late, {100, 199}, u"eur"_s));
    checkout.addLink(id);
    EXPECT_EQ(store->database.select(u"SELECT * FROM checkout_links"_s).size(), 1); // the others are forgotten
    EXPECT_EQ(store->ledger.balance(id), 100);
    EXPECT_EQ(store->ledger.entries(id, 0, 9).last().reference, purchase->id);
    EXPECT_THAT(store->ledger.unexplained(), testing::IsEmpty());
}

TEST_P(StoreTest, TakesBackWhatWasPaidBackAsFarAsItIsThere)
{
    const auto store = open({.freeTokens = 0});
    auto &checkout = store->checkout;
    const auto id = store->devices.add(u"linux"_s).deviceId;
    const auto purchase = checkout.begin(checkout.addLink(id), {1000, 300}, u"eur"_s);
    ASSERT_TRUE(checkout.complete(purchase->id, Payment{u"1"_s, 300, u"eur"_s, u"pi"_s}));
    EXPECT_EQ(checkout.takeBack({u"2"_s, u"other"_s, 300}), std::nullopt);
    EXPECT_EQ(checkout.takeBack({u"2"_s, u"pi"_s, 100}), 334);
    EXPECT_EQ(checkout.takeBack({u"2"_s, u"pi"_s, 300}), std::nullopt);
    ASSERT_TRUE(store->ledger.hold(id, 600));
    EXPECT_EQ(checkout.takeBack({u"3"_s, u"pi"_s, 300}), 66);
    EXPECT_EQ(checkout.takeBack({u"4"_s, u"pi"_s, 300}), std::nullopt);
    EXPECT_EQ(store->ledger.balance(id), 600);
    EXPECT_EQ(store->ledger.entries(id, 0, 9).last().reference, purchase->id + u" (600 missing)"_s);
    EXPECT_THAT(store->ledger.unexplained(), testing::IsEmpty());
}

TEST(SqliteStoreTest, WaitsForTheDiskUnlessAChangeIsVolatile)
{
    const TestDatabase file(DatabaseKind::Sqlite);
    Database database(file.location());
    const auto pragma = [&](const QString &name) { return database.first(u"PRAGMA "_s + name)->at(0).toInt(); };
    constexpr int full = 2;
    for (const auto kind : {Transaction::Kind::Volatile, Transaction::Kind::Durable, Transaction::Kind::Volatile}) {
        const Transaction transaction(database, kind);
        EXPECT_EQ(pragma(u"synchronous"_s) == full, kind == Transaction::Kind::Durable);
    }
    EXPECT_EQ(pragma(u"foreign_keys"_s), 1);
    EXPECT_EQ(database.first(u"PRAGMA journal_mode"_s)->at(0), u"wal"_s);
}
