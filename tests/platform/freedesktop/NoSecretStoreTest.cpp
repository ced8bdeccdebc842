// SPDX-License-Identifier: MIT
#include "platform/freedesktop/LibsecretStore.h"

#include "support/Await.h"
#include "support/Printing.h"
#include "support/Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(NoSecretStoreTest, WithoutASecretServiceNothingIsReadAndNothingKept)
{
    // Whatever is installed here, the bus must not start it: the first description of a service that it finds counts.
    const QTemporaryDir descriptions;
    ASSERT_TRUE(QDir(descriptions.path()).mkpath(u"dbus-1/services"_s));
    QFile description(descriptions.filePath(u"dbus-1/services/org.freedesktop.secrets.service"_s));
    ASSERT_TRUE(description.open(QIODevice::WriteOnly));
    description.write("[D-BUS Service]\nName=org.freedesktop.secrets\nExec=/bin/false\n");
    description.close();
    qputenv("XDG_DATA_DIRS", QFile::encodeName(descriptions.path()));
    const Session session(Session::Keyring::None);
    session.use();
    LibsecretStore store;
    const QString service = u"app.quillo.Quillo"_s;
    EXPECT_EQ(resultOf(store.read(service, u"credential"_s)), std::nullopt);
    EXPECT_FALSE(resultOf(store.add(service, u"credential"_s, "secret")));
    EXPECT_FALSE(resultOf(store.remove(service, u"credential"_s)));
    EXPECT_EQ(resultOf(store.read(service, u"credential"_s)), std::nullopt);
}
