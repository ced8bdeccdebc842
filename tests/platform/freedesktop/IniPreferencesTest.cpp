// SPDX-License-Identifier: MIT
#include "platform/freedesktop/IniPreferences.h"

#include "support/Printing.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class IniPreferencesTest : public ::testing::Test {
protected:
    /// Another program writes the file.
    void put(const QByteArray &content) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// What stands on disk, read by somebody who shares nothing with `preferences`.
    std::unique_ptr<IniPreferences> onDisk()
    {
        const QString copy = folder.filePath(u"copy%1.conf"_s.arg(++copies));
        EXPECT_TRUE(QFile::copy(path, copy));
        return std::make_unique<IniPreferences>(copy);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillo.conf"_s);
    IniPreferences preferences{path};
    int copies = 0;
};

} // namespace

TEST_F(IniPreferencesTest, ValuesAreOnDiskWithTheirTypesAndAllTheirBytes)
{
    const QByteArray bytes[] = {
        {},
        R"({"version":1,"name":"a, b; c = %41\\"})",
        QByteArrayLiteral("\0\x01\xff\x80 \n)@ByteArray("),
    };
    for (const QByteArray &value : bytes) {
        preferences.setData(u"data"_s, value);
        EXPECT_EQ(onDisk()->data(u"data"_s), value);
        EXPECT_EQ(onDisk()->string(u"data"_s), std::nullopt) << "no string";
    }
    for (const QString &value :
         {u"http://127.0.0.1:8791/?a=b,c;d#e%20"_s, u" \"Grüße\"\n日本 "_s, u"@ByteArray(x)"_s, u"a, b"_s, u""_s}) {
        preferences.setString(u"string"_s, value);
        EXPECT_EQ(onDisk()->string(u"string"_s), value);
        EXPECT_EQ(onDisk()->data(u"string"_s), std::nullopt) << "no bytes";
    }
    for (const bool value : {true, false}) {
        preferences.setBoolean(u"boolean"_s, value);
        EXPECT_EQ(onDisk()->boolean(u"boolean"_s), value);
    }
    preferences.remove(u"string"_s);
    EXPECT_EQ(onDisk()->string(u"string"_s), std::nullopt);
    EXPECT_EQ(preferences.string(u"string"_s), std::nullopt);
}

TEST_F(IniPreferencesTest, ValueOfAnotherTypeReadsAsNothing)
{
    put("[General]\ntext=plain\nlist=a, b\nbytes=@ByteArray(true)\nflag=true\n");
    for (const QString &key : {u"text"_s, u"list"_s, u"flag"_s, u"absent"_s}) {
        EXPECT_EQ(preferences.data(key), std::nullopt) << key.toStdString();
    }
    for (const QString &key : {u"list"_s, u"bytes"_s, u"absent"_s}) {
        EXPECT_EQ(preferences.string(key), std::nullopt) << key.toStdString();
    }
    for (const QString &key : {u"text"_s, u"list"_s, u"absent"_s}) {
        EXPECT_FALSE(preferences.boolean(key)) << key.toStdString();
    }
    EXPECT_EQ(preferences.string(u"text"_s), u"plain"_s);
    EXPECT_EQ(preferences.data(u"bytes"_s), "true");
    EXPECT_TRUE(preferences.boolean(u"flag"_s));
}

TEST_F(IniPreferencesTest, WhatAnotherProgramWroteIsSeenAndKept)
{
    preferences.setString(u"mine"_s, u"1"_s);
    ASSERT_EQ(preferences.string(u"theirs"_s), std::nullopt);
    put("[General]\nmine=1\ntheirs=someone else's\n");
    EXPECT_EQ(preferences.string(u"theirs"_s), u"someone else's"_s);

    put("[General]\nmine=1\ntheirs=once more, and longer\nnew=2\n");
    preferences.setString(u"mine"_s, u"3"_s);
    EXPECT_EQ(onDisk()->string(u"new"_s), u"2"_s);
    EXPECT_EQ(onDisk()->string(u"mine"_s), u"3"_s);
}

TEST_F(IniPreferencesTest, NobodyElsesLockIsWaitedForAndNobodyElseReads)
{
    const mode_t mask = ::umask(0);
    const auto restore = qScopeGuard([mask] { ::umask(mask); });
    QLockFile lock(path + u".lock"_s);
    ASSERT_TRUE(lock.lock());
    QElapsedTimer time;
    time.start();
    preferences.setString(u"key"_s, u"1"_s);
    EXPECT_TRUE(preferences.isSaved());
    EXPECT_LT(time.elapsed(), 1000);
    EXPECT_EQ(onDisk()->string(u"key"_s), u"1"_s);
    for (const mode_t mode : {0600U, 0644U}) {
        struct stat status {};
        ASSERT_EQ(::stat(qPrintable(path), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600U);
        ASSERT_EQ(::chmod(qPrintable(path), mode), 0);
        preferences.setString(u"key"_s, u"2"_s);
    }
}

TEST_F(IniPreferencesTest, WhatCannotBeSavedIsNotDropped)
{
    const QString blocked = folder.filePath(u"Quillo"_s);
    QFile obstacle(blocked);
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    IniPreferences unsaved(blocked + u"/Quillo.conf"_s);
    unsaved.setString(u"key"_s, u"1"_s);
    EXPECT_FALSE(unsaved.isSaved());
    EXPECT_EQ(unsaved.string(u"key"_s), u"1"_s);
    ASSERT_TRUE(obstacle.remove());
    EXPECT_TRUE(unsaved.isSaved());
    path = blocked + u"/Quillo.conf"_s;
    EXPECT_EQ(onDisk()->string(u"key"_s), u"1"_s);
}

TEST_F(IniPreferencesTest, GarbageHasNoValuesAndIsNoObstacle)
{
    for (const QByteArray &garbage :
         {QByteArrayLiteral("\0\xff\xfe[[[\n=\n]=@ByteArray(\n@Invalid\n\\x"), QByteArrayLiteral("[General\nkey"),
          QByteArrayLiteral("%%%=@Variant(\0\0\0\x7f)")}) {
        put(garbage);
        IniPreferences reader(path);
        EXPECT_EQ(reader.string(u"apiURL"_s), std::nullopt);
        EXPECT_EQ(reader.data(u"aiConsent"_s), std::nullopt);
        reader.setString(u"apiURL"_s, u"http://localhost"_s);
        EXPECT_EQ(reader.string(u"apiURL"_s), u"http://localhost"_s);
    }
}
