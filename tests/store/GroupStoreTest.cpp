// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "FakeFiles.h"
#include "FakePreferences.h"
#include "support/Printing.h"

#include "store/GroupStore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class GroupStoreTest : public ::testing::Test {
protected:
    void writeFile(const QByteArray &json)
    {
        QDir().mkpath(files.applicationSupportFolder() + u"/Quillo"_s);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QVariant storedActiveId() const { return preferences.values.value(u"activeGroupId"_s); }

    void listen(GroupStore &store)
    {
        QObject::connect(&store, &GroupStore::groupsChanged, &store, [this] { ++groupsChanges; });
        QObject::connect(&store, &GroupStore::activeIdChanged, &store, [this] { ++activeChanges; });
    }

    FakeFiles files;
    FakePreferences preferences;
    FakeClock clock;
    QString path = files.applicationSupportFolder() + u"/Quillo/groups.json"_s;
    int groupsChanges = 0;
    int activeChanges = 0;
};

const auto twoGroups = R"([{"id":"A","name":"Work","kind":"folder"},{"id":"B","name":"Home","kind":"smart","x":1}])";

QString ids(const GroupStore &store)
{
    QString ids;
    for (const DictationGroup &group : store.groups()) {
        ids += group.id;
    }
    return ids;
}

} // namespace

TEST_F(GroupStoreTest, EachChangeIsSavedAndTold)
{
    writeFile(twoGroups);
    GroupStore store(files, preferences, clock);
    listen(store);
    const QString id = store.add(u"Work"_s).id;
    store.rename(id, QString());
    store.rename(u"unknown"_s, u"Nothing"_s);
    EXPECT_EQ(groupsChanges, 2);
    EXPECT_EQ(content(),
              R"([{"id":"A","kind":"folder","name":"Work"},{"id":"B","kind":"smart","name":"Home"},{"id":")" +
                  id.toUtf8() + R"(","kind":"folder","name":""}])");
    EXPECT_EQ(store.group(id), (DictationGroup{id, QString(), u"folder"_s}));
    EXPECT_FALSE(store.group(std::nullopt));
    store.remove(u"A"_s);
    store.remove(id);
    EXPECT_EQ(groupsChanges, 4);
    EXPECT_EQ(content(), R"([{"id":"B","kind":"smart","name":"Home"}])");
    EXPECT_EQ(activeChanges, 0);
}

TEST_F(GroupStoreTest, TheActiveGroupIsRememberedAsLongAsItExists)
{
    writeFile(twoGroups);
    preferences.values[u"activeGroupId"_s] = u"B"_s;
    {
        GroupStore store(files, preferences, clock);
        EXPECT_EQ(store.activeId(), u"B"_s);
        listen(store);
        store.remove(u"A"_s);
        store.setActiveId(u"B"_s);
        EXPECT_EQ(activeChanges, 0);
        store.remove(u"B"_s);
        EXPECT_EQ(activeChanges, 1);
        EXPECT_FALSE(store.activeId());
        EXPECT_FALSE(storedActiveId().isValid());
    }
    preferences.values[u"activeGroupId"_s] = u"gone"_s;
    EXPECT_FALSE(GroupStore(files, preferences, clock).activeId());
    EXPECT_FALSE(storedActiveId().isValid());
}

TEST_F(GroupStoreTest, WhatHoldsNoGroupsIsPutAside)
{
    for (const QByteArray &json : {QByteArray("[{\"id\":\"A\",\"name\":\"Work\"}]"), QByteArray("{}"),
                                   QByteArray("[{\"id\":1,\"name\":\"Work\",\"kind\":\"folder\"}]")}) {
        SCOPED_TRACE(json.toStdString());
        writeFile(json);
        GroupStore store(files, preferences, clock);
        EXPECT_TRUE(store.groups().isEmpty());
        EXPECT_EQ(store.notice(), u"The groups can't be read: a new one begins, the old file is kept"_s);
        clock.advance(std::chrono::seconds(1));
        store.add(u"New"_s);
        const QDir folder = QFileInfo(path).dir();
        QFile damaged(folder.filePath(folder.entryList({u"groups.json.damaged-*"_s}, QDir::Files, QDir::Name).last()));
        ASSERT_TRUE(damaged.open(QIODevice::ReadOnly));
        EXPECT_EQ(damaged.readAll(), json);
    }
}

TEST_F(GroupStoreTest, TwoThatWriteKeepEachOthersChanges)
{
    writeFile(R"([{"id":"A","name":"","kind":"folder"},{"id":"B","name":"","kind":"folder"},
                  {"id":"C","name":"","kind":"folder"}])");
    GroupStore here(files, preferences, clock);
    GroupStore there(files, preferences, clock);
    here.setActiveId(u"B"_s);
    there.remove(u"B"_s);
    const QString added = there.add(u"Theirs"_s).id;
    here.rename(u"C"_s, u"Ours"_s);
    EXPECT_EQ(ids(here), u"AC"_s + added);
    EXPECT_FALSE(here.activeId()) << "removed there";
    there.rename(u"A"_s, u"First"_s);
    here.move({1}, 0);
    EXPECT_EQ(ids(here), u"CA"_s + added);
    EXPECT_EQ(here.group(u"A"_s)->name, u"First"_s);
    EXPECT_EQ(GroupStore(files, preferences, clock).groups(), here.groups());
}

TEST_F(GroupStoreTest, CyclingGoesThroughAllEntriesBothWays)
{
    {
        GroupStore store(files, preferences, clock);
        store.cycle(true);
        store.cycle(false);
        EXPECT_FALSE(store.activeId());
    }
    writeFile(twoGroups);
    GroupStore store(files, preferences, clock);
    listen(store);
    for (const auto &[forward, expected] :
         std::initializer_list<std::pair<bool, std::optional<QString>>>{{true, u"A"_s},
                                                                        {true, u"B"_s},
                                                                        {true, std::nullopt},
                                                                        {false, u"B"_s},
                                                                        {false, u"A"_s},
                                                                        {false, std::nullopt}}) {
        store.cycle(forward);
        EXPECT_EQ(store.activeId(), expected);
        EXPECT_EQ(storedActiveId(), expected ? QVariant(*expected) : QVariant());
    }
    EXPECT_EQ(activeChanges, 6);
    store.setActiveId(u"unknown"_s);
    store.cycle(true);
    EXPECT_EQ(store.activeId(), u"A"_s);
}

TEST_F(GroupStoreTest, ReorderingMovesTheChosenGroupsBeforeTheDestination)
{
    struct Row {
        std::set<qsizetype> sources;
        qsizetype destination;
        QString expected;
    };
    for (const Row &row : {Row{{0}, 2, u"BACD"_s}, Row{{3}, 0, u"DABC"_s}, Row{{0, 2}, 4, u"BDAC"_s},
                           Row{{1}, 1, u"ABCD"_s}, Row{{0, 3}, 2, u"BADC"_s}, Row{{9}, 0, u"ABCD"_s}}) {
        writeFile(R"([{"id":"A","name":"","kind":"folder"},{"id":"B","name":"","kind":"folder"},
                      {"id":"C","name":"","kind":"folder"},{"id":"D","name":"","kind":"other"}])");
        GroupStore store(files, preferences, clock);
        store.move(row.sources, row.destination);
        EXPECT_EQ(ids(store), row.expected);
        EXPECT_EQ(GroupStore(files, preferences, clock).groups(), store.groups());
    }
}
