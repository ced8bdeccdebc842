// SPDX-License-Identifier: MIT
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
        QFile file(files.applicationSupportFolder() + u"/Quillo/groups.json"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    QVariant storedActiveId() const { return preferences.values.value(u"activeGroupId"_s); }

    FakeFiles files;
    FakePreferences preferences;
};

const auto twoGroups = R"([{"id":"A","name":"Work","kind":"folder"},{"id":"B","name":"Home","kind":"smart","x":1}])";

QStringList ids(const GroupStore &store)
{
    QStringList ids;
    for (const DictationGroup &group : store.groups()) {
        ids.append(group.id);
    }
    return ids;
}

} // namespace

TEST_F(GroupStoreTest, GroupsAndTheActiveOneSurviveARestart)
{
    QString id;
    {
        GroupStore store(files, preferences);
        store.add(u"Work"_s);
        id = store.add(u"Work"_s).id;
        store.rename(id, QString());
        EXPECT_FALSE(store.activeId());
        store.setActiveId(id);
    }
    const GroupStore store(files, preferences);
    ASSERT_EQ(store.groups().size(), 2);
    EXPECT_EQ(store.groups().first().name, u"Work"_s);
    EXPECT_EQ(store.group(id), (DictationGroup{id, QString(), u"folder"_s}));
    EXPECT_EQ(store.activeId(), id);
}

TEST_F(GroupStoreTest, AStaleActiveIdIsForgotten)
{
    preferences.setString(u"activeGroupId"_s, u"gone"_s);
    const GroupStore store(files, preferences);
    EXPECT_FALSE(store.activeId());
    EXPECT_FALSE(storedActiveId().isValid());
}

TEST_F(GroupStoreTest, FilesThatHoldNoGroupsLoadAsEmpty)
{
    for (const QByteArray &json : {QByteArray("[{\"id\":\"A\",\"name\":\"Work\"}]"), QByteArray("{}"),
                                   QByteArray("[{\"id\":1,\"name\":\"Work\",\"kind\":\"folder\"}]")}) {
        writeFile(json);
        EXPECT_TRUE(GroupStore(files, preferences).groups().isEmpty()) << json.toStdString();
    }
}

TEST_F(GroupStoreTest, CyclingGoesThroughAllEntriesBothWays)
{
    writeFile(twoGroups);
    GroupStore store(files, preferences);
    for (const auto &[forward, expected] :
         std::initializer_list<std::pair<bool, std::optional<QString>>>{{true, u"A"_s},
                                                                        {true, u"B"_s},
                                                                        {true, std::nullopt},
                                                                        {false, u"B"_s},
                                                                        {false, u"A"_s},
                                                                        {false, std::nullopt}}) {
        store.cycle(forward);
        EXPECT_EQ(store.activeId(), expected);
        EXPECT_EQ(storedActiveId().isValid(), expected.has_value());
    }
    store.setActiveId(u"unknown"_s);
    store.cycle(true);
    EXPECT_EQ(store.activeId(), u"A"_s);
}

TEST_F(GroupStoreTest, WithoutGroupsCyclingStaysOnAllEntries)
{
    GroupStore store(files, preferences);
    store.cycle(true);
    store.cycle(false);
    EXPECT_FALSE(store.activeId());
}

TEST_F(GroupStoreTest, RemovingTheActiveGroupMakesAllEntriesActive)
{
    writeFile(twoGroups);
    preferences.setString(u"activeGroupId"_s, u"B"_s);
    GroupStore store(files, preferences);
    store.remove(u"A"_s);
    EXPECT_EQ(store.activeId(), u"B"_s);
    store.remove(u"B"_s);
    EXPECT_FALSE(store.activeId());
    EXPECT_FALSE(storedActiveId().isValid());
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
        GroupStore store(files, preferences);
        store.move(row.sources, row.destination);
        EXPECT_EQ(ids(store).join(QString()), row.expected);
        const GroupStore reloaded(files, preferences);
        EXPECT_EQ(reloaded.groups(), store.groups());
    }
}
