// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "FakeFiles.h"
#include "support/Printing.h"

#include "store/TranscriptionStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TranscriptionStoreTest : public ::testing::Test {
protected:
    void writeFile(const QByteArray &json)
    {
        QDir().mkpath(files.applicationSupportFolder() + u"/Quillo"_s);
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    QByteArray fileContent() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QString path() const { return files.applicationSupportFolder() + u"/Quillo/transcriptions.json"_s; }
    QJsonArray stored() const { return QJsonDocument::fromJson(fileContent()).array(); }

    FakeFiles files;
    FakeClock clock;
};

const auto threeEntries = R"([
    {"id": "A", "text": "one", "timestamp": "2026-01-01T00:00:00Z", "categoryId": "work", "color": "red"},
    {"id": "B", "text": "two", "timestamp": "2026-01-01T00:00:00Z", "categoryId": null},
    {"id": "A", "text": "three", "timestamp": "2026-01-01T00:00:00Z"}])";

QStringList texts(const QList<Transcription> &items)
{
    QStringList texts;
    for (const Transcription &item : items) {
        texts.append(item.text);
    }
    return texts;
}

} // namespace

TEST_F(TranscriptionStoreTest, FirstRunIsEmptyAndWritesNothing)
{
    const TranscriptionStore store(files, clock);
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(files.writes, 0);
}

TEST_F(TranscriptionStoreTest, NewEntryStandsFirstWithIdAndUtcTimeAndSurvivesARestart)
{
    {
        TranscriptionStore store(files, clock);
        store.add(u"older"_s, std::nullopt);
        clock.advance(std::chrono::milliseconds(1999));
        store.add(u"line\n\"quoted\" \\ \t\u0001 ünïcödé 🎙"_s, u"work"_s);
    }
    const TranscriptionStore store(files, clock);
    ASSERT_EQ(store.items().size(), 2);
    const Transcription newest = store.items().first();
    EXPECT_EQ(newest.text, u"line\n\"quoted\" \\ \t\u0001 ünïcödé 🎙"_s);
    EXPECT_EQ(newest.timestamp, u"2026-01-31T12:00:01Z"_s);
    EXPECT_EQ(newest.categoryId, u"work"_s);
    static const QRegularExpression upperCaseUuid(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$"_s);
    EXPECT_TRUE(upperCaseUuid.match(newest.id).hasMatch());
    EXPECT_FALSE(stored().at(1).toObject().contains(u"categoryId"_s));
}

TEST_F(TranscriptionStoreTest, FilesThatAreNoHistoryLoadAsEmptyAndAreReplacedByTheNextChange)
{
    const QByteArray table[] = {
        "",
        "not json",
        "{}",
        "null",
        "[1]",
        R"([{"id":"A","text":"one"}])",
        R"([{"id":"A","text":"one","timestamp":5}])",
        R"([{"id":"A","text":"one","timestamp":"t","categoryId":7}])",
        R"([{"id":"A","text":"one","timestamp":"t"},{"id":null,"text":"two","timestamp":"t"}])",
        QByteArray(5000, '['),
    };
    for (const QByteArray &json : table) {
        SCOPED_TRACE(json.left(60).toStdString());
        writeFile(json);
        TranscriptionStore store(files, clock);
        EXPECT_TRUE(store.items().isEmpty());
        EXPECT_EQ(fileContent(), json);
        store.add(u"new"_s, std::nullopt);
        EXPECT_EQ(stored().size(), 1);
    }
}

TEST_F(TranscriptionStoreTest, EntriesAreFiledByGroup)
{
    writeFile(threeEntries);
    const TranscriptionStore store(files, clock);
    EXPECT_EQ(texts(store.items(std::nullopt)), QStringList({u"one"_s, u"two"_s, u"three"_s}));
    EXPECT_EQ(texts(store.items(u"work"_s)), QStringList({u"one"_s}));
    EXPECT_TRUE(store.items(u"Work"_s).isEmpty());
}

TEST_F(TranscriptionStoreTest, MoveTakesTheFirstEntryOfAnIdAndRemoveAllOfThem)
{
    writeFile(threeEntries);
    TranscriptionStore store(files, clock);
    store.move(u"unknown"_s, u"home"_s);
    EXPECT_EQ(files.writes, 0);

    store.move(u"A"_s, u"home"_s);
    EXPECT_EQ(texts(store.items(u"home"_s)), QStringList({u"one"_s}));
    EXPECT_FALSE(stored().at(0).toObject().contains(u"color"_s));
    store.move(u"A"_s, std::nullopt);
    EXPECT_FALSE(stored().at(0).toObject().contains(u"categoryId"_s));

    store.remove(u"A"_s);
    EXPECT_EQ(texts(store.items()), QStringList({u"two"_s}));
    const int writes = files.writes;
    store.remove(u"unknown"_s);
    EXPECT_EQ(files.writes, writes + 1);
}

TEST_F(TranscriptionStoreTest, ANewEntryLeavesTheLoadedOnesInTheFile)
{
    writeFile(threeEntries);
    TranscriptionStore(files, clock).add(u"new"_s, std::nullopt);
    EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), QStringList({u"new"_s, u"one"_s, u"two"_s, u"three"_s}));
}

TEST_F(TranscriptionStoreTest, ClearingLeavesAnEmptyArray)
{
    writeFile(threeEntries);
    TranscriptionStore store(files, clock);
    store.clear();
    EXPECT_EQ(fileContent(), "[]");
    EXPECT_TRUE(store.items().isEmpty());
}

TEST_F(TranscriptionStoreTest, AFailingWriteKeepsTheEntryInMemory)
{
    TranscriptionStore store(files, clock);
    files.failsToWrite = true;
    store.add(u"kept"_s, std::nullopt);
    EXPECT_EQ(texts(store.items()), QStringList({u"kept"_s}));
    files.failsToWrite = false;
    store.add(u"later"_s, std::nullopt);
    EXPECT_EQ(stored().size(), 2);
}
