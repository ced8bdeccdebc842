// SPDX-License-Identifier: MIT
#include "platform/freedesktop/LibsecretStore.h"
#include "service/Keychain.h"

#include "support/Await.h"
#include "support/Printing.h"
#include "support/Session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Stands where GNOME Keyring's password dialog would be.
class Prompter final : private QDBusVirtualObject {
public:
    explicit Prompter(const QString &busAddress) : m_bus(QDBusConnection::connectToBus(busAddress, u"prompter"_s))
    {
        m_bus.registerVirtualObject(u"/org/gnome/keyring/Prompter"_s, this);
        m_bus.registerService(u"org.gnome.keyring.SystemPrompter"_s);
    }
    ~Prompter() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    int prompts() const { return m_prompts; }

private:
    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        ++m_prompts;
        return bus.send(message.createErrorReply(QDBusError::Failed, u"dismissed"_s));
    }

    QDBusConnection m_bus;
    int m_prompts = 0;
};

class SecretStoreTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        session = std::make_unique<Session>();
        session->use();
    }
    static void TearDownTestSuite() { session.reset(); }

    static std::optional<QString> read(Keychain &keychain, const QString &account)
    {
        return resultOf(keychain.read(account));
    }

    static void finish(QCoro::Task<void> task)
    {
        bool done = false;
        [](QCoro::Task<void> &awaited, bool &ended) -> QCoro::Task<void> {
            co_await awaited;
            ended = true;
        }(task, done);
        ASSERT_TRUE(await([&] { return done; }));
    }

    /// What another program finds for an account.
    static QByteArray found(const QString &account)
    {
        return run(u"secret-tool"_s,
                   {u"search"_s, u"--all"_s, u"service"_s, u"app.quillo.Quillo"_s, u"account"_s, account},
                   session->environment());
    }

    static inline std::unique_ptr<Session> session;
    LibsecretStore store;
    Keychain keychain{store};
};

} // namespace

TEST_F(SecretStoreTest, WritingReplacesTheOneItemOfTheAccount)
{
    EXPECT_TRUE(resultOf(keychain.write(u"other"_s, u"untouched"_s)));
    EXPECT_EQ(read(keychain, u"credential"_s), std::nullopt);
    for (const QString &value : {u"first-value"_s, u"Grüße 日本"_s}) {
        EXPECT_TRUE(resultOf(keychain.write(u"credential"_s, value)));
        EXPECT_EQ(read(keychain, u"credential"_s), value);
        const QByteArray items = found(u"credential"_s);
        EXPECT_EQ(items.count("secret = "), 1);
        EXPECT_TRUE(items.contains("secret = " + value.toUtf8() + '\n')) << items.constData();
    }
    EXPECT_FALSE(found(u"credential"_s).contains("first-value"));
    EXPECT_EQ(read(keychain, u"other"_s), u"untouched"_s);

    finish(keychain.remove(u"credential"_s));
    EXPECT_EQ(read(keychain, u"credential"_s), std::nullopt);
    EXPECT_EQ(found(u"credential"_s), "");
    EXPECT_EQ(read(keychain, u"other"_s), u"untouched"_s);
}

TEST_F(SecretStoreTest, BytesComeBackAsTheyAre)
{
    const auto bytes = QByteArrayLiteral("a\0\xff\n");
    EXPECT_TRUE(resultOf(store.add(u"app.quillo.Quillo"_s, u"bytes"_s, bytes)));
    EXPECT_EQ(resultOf(store.read(u"app.quillo.Quillo"_s, u"bytes"_s)), bytes);
    EXPECT_EQ(read(keychain, u"bytes"_s), std::nullopt) << "no UTF-8";
}

TEST_F(SecretStoreTest, RemovingWhatIsNotThereIsNoFailure)
{
    EXPECT_TRUE(resultOf(store.remove(u"app.quillo.Quillo"_s, u"missing"_s)));
}

TEST_F(SecretStoreTest, ALockedKeyringIsLeftAsItIsAndNobodyIsAskedToUnlockIt)
{
    const Prompter prompter(session->busAddress());
    EXPECT_TRUE(resultOf(keychain.write(u"credential"_s, u"earlier"_s)));
    session->lockKeyring();
    EXPECT_EQ(read(keychain, u"credential"_s), std::nullopt);
    EXPECT_FALSE(resultOf(keychain.write(u"credential"_s, u"later"_s)));
    finish(keychain.remove(u"credential"_s));
    EXPECT_EQ(prompter.prompts(), 0);
    EXPECT_FALSE(resultOf(store.unlock())) << "dismissed";
    EXPECT_EQ(prompter.prompts(), 1);
    session->unlockKeyring();
    EXPECT_TRUE(resultOf(store.unlock()));
    EXPECT_EQ(read(keychain, u"credential"_s), u"earlier"_s);
    EXPECT_EQ(prompter.prompts(), 1);
}

TEST_F(SecretStoreTest, WithoutADefaultKeyringOneIsMadeOnlyWhenAskedFor)
{
    const Prompter prompter(session->busAddress());
    const auto setDefault = [](const QString &collection) {
        run(u"gdbus"_s, {u"call"_s, u"--session"_s, u"--dest"_s, u"org.freedesktop.secrets"_s, u"--object-path"_s,
                         u"/org/freedesktop/secrets"_s, u"--method"_s, u"org.freedesktop.Secret.Service.SetAlias"_s,
                         u"default"_s, collection});
    };
    setDefault(u"/"_s);
    EXPECT_FALSE(resultOf(keychain.write(u"credential"_s, u"lost"_s)));
    EXPECT_EQ(prompter.prompts(), 0);
    EXPECT_FALSE(resultOf(store.unlock())) << "dismissed";
    EXPECT_EQ(prompter.prompts(), 1);
    setDefault(u"/org/freedesktop/secrets/collection/login"_s);
    EXPECT_TRUE(resultOf(keychain.write(u"credential"_s, u"kept"_s)));
}
