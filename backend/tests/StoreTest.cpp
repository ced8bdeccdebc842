// SPDX-License-Identifier: MIT
#include "store/StoreThread.h"

#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

class StoreTest : public testing::Test {
protected:
    std::unique_ptr<Store> open(GrantPolicy policy = {})
    {
        return std::make_unique<Store>(folder.filePath(QStringLiteral("backend.db")), policy, [this] { return now; });
    }

    static QByteArray credential(const Registration &device)
    {
        return (device.deviceId + QLatin1Char('.') + device.secret).toLatin1();
    }

    static void expectExplained(Store &store, const QString &deviceId)
    {
        auto row =
            store.database.execute(QStringLiteral("SELECT SUM(amount) FROM ledger WHERE device_id = ?"), {deviceId});
        ASSERT_TRUE(row.next());
        EXPECT_EQ(row.value(0).toLongLong(), store.ledger.balance(deviceId));
    }

    QTemporaryDir folder;
    qint64 now = 1'700'000'000;
};

} // namespace

TEST_F(StoreTest, KnowsADeviceByItsWholeCredentialOnly)
{
    const auto store = open();
    const auto device = store->devices.add(QStringLiteral("linux"));
    const auto other = store->devices.add(QStringLiteral("linux"));
    const auto good = credential(device);
    ASSERT_TRUE(store->devices.authenticate(good));
    EXPECT_EQ(store->devices.authenticate(good)->id, device.deviceId);
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
}

TEST_F(StoreTest, KeepsNoSecretInItsFiles)
{
    const auto store = open();
    const auto device = store->devices.add(QStringLiteral("linux"));
    const auto link = store->checkoutLinks.add(device.deviceId);
    QByteArray kept;
    for (const auto &entry : QDir(folder.path()).entryInfoList(QDir::Files)) {
        QFile file(entry.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        kept += file.readAll();
        EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0) << entry.fileName().toStdString();
    }
    EXPECT_TRUE(kept.contains(device.deviceId.toLatin1())); // so the files do hold the device
    EXPECT_FALSE(kept.contains(device.secret.toLatin1()));
    EXPECT_FALSE(kept.contains(link));
}

TEST_F(StoreTest, OutlivesTheProcess)
{
    const auto device = open()->devices.add(QStringLiteral("linux"));
    const auto found = open()->devices.authenticate(credential(device));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->balance, 3600);
}

TEST_F(StoreTest, ChargesWhatTheBalanceCoversAndExplainsIt)
{
    const auto store = open({.freeTokens = 10});
    const auto id = store->devices.add(QStringLiteral("linux")).deviceId;
    const auto charge = store->ledger.charge(id, 7);
    ASSERT_TRUE(charge);
    EXPECT_EQ(charge->balance, 3);
    EXPECT_FALSE(store->ledger.charge(id, 4));
    expectExplained(*store, id);
    store->ledger.refund(id, *charge);
    EXPECT_EQ(store->ledger.balance(id), 10);
    expectExplained(*store, id);
}

TEST_F(StoreTest, NeverChargesAnUnmeteredDevice)
{
    const auto store = open({.freeTokens = 0});
    const auto id = store->devices.add(QStringLiteral("linux")).deviceId;
    store->database.execute(QStringLiteral("UPDATE devices SET unmetered = 1"));
    const auto charge = store->ledger.charge(id, 7);
    ASSERT_TRUE(charge);
    store->ledger.refund(id, *charge);
    EXPECT_EQ(store->ledger.balance(id), 0);
}

TEST_F(StoreTest, GrantsFreeTokensUntilTheDaysPoolIsEmpty)
{
    const auto store = open({.freeTokens = 10, .dailyPool = 25});
    QList<bool> missed;
    for (int i = 0; i < 3; ++i) {
        missed.append(store->devices.add(QStringLiteral("linux")).freeGrantMissed);
    }
    EXPECT_EQ(missed, (QList{false, false, true}));
    now += 86'400;
    EXPECT_FALSE(store->devices.add(QStringLiteral("linux")).freeGrantMissed);
}

TEST_F(StoreTest, RedeemsALinkOnceAndInTime)
{
    const auto store = open();
    const auto id = store->devices.add(QStringLiteral("linux")).deviceId;
    const auto link = store->checkoutLinks.add(id);
    EXPECT_TRUE(store->checkoutLinks.isValid(link));
    EXPECT_EQ(store->checkoutLinks.redeem(link, 100), 3700);
    EXPECT_EQ(store->checkoutLinks.redeem(link, 100), std::nullopt);
    EXPECT_FALSE(store->checkoutLinks.isValid(link));

    const auto late = store->checkoutLinks.add(id);
    now += 1800;
    EXPECT_FALSE(store->checkoutLinks.isValid(late));
    EXPECT_EQ(store->checkoutLinks.redeem(late, 100), std::nullopt);
    EXPECT_EQ(store->ledger.balance(id), 3700);
    expectExplained(*store, id);
}
