// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "FakeFiles.h"
#include "support/Printing.h"

#include "store/TranscriptionStore.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TranscriptionStoreTest : public ::testing::Test {
protected:
    void writeFile(const QByteArray &json)
    {
        QDir().mkpath(folder.path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    QByteArray content() const { return contentOf(path); }

    /// The texts, newest first.
    static QString texts(const QList<Transcription> &items)
    {
        QStringList texts;
        for (const Transcription &item : items) {
            texts.append(item.text);
        }
        return texts.join(u' ');
    }

    /// Notes what `store` tells, in order.
    void listen(TranscriptionStore &store)
    {
        const auto note = [this](const QString &word) { return [this, word] { heard.append(word); }; };
        QObject::connect(&store, &TranscriptionStore::itemsChanged, &store, note(u"items"_s));
        QObject::connect(&store, &TranscriptionStore::added, &store, note(u"added"_s));
        QObject::connect(&store, &TranscriptionStore::reset, &store, note(u"reset"_s));
        QObject::connect(&store, &TranscriptionStore::noticeChanged, &store, note(u"notice"_s));
        const auto notePlace = [this](const QString &word) {
            return [this, word](qsizetype place) { heard.append(word + QString::number(place)); };
        };
        QObject::connect(&store, &TranscriptionStore::changed, &store, notePlace(u"changed"_s));
        QObject::connect(&store, &TranscriptionStore::removed, &store, notePlace(u"removed"_s));
    }
    QString told() { return std::exchange(heard, {}).join(u' '); }

    FakeFiles files;
    FakeClock clock;
    QDir folder{files.applicationSupportFolder() + u"/Quillo"_s};
    QString path = folder.filePath(u"transcriptions.json"_s);
    QStringList heard;
};

const auto threeEntries = R"([
    {"id": "A", "text": "one", "timestamp": "2026-01-03T00:00:00Z", "categoryId": "work", "color": "red"},
    {"id": "B", "text": "two", "timestamp": "2026-01-02T00:00:00Z", "categoryId": null, "size": 1e999, "x": [{"id": 1}]},
    {"id": "A", "text": "three", "timestamp": "2026-01-01T00:00:00Z"}])";

} // namespace

TEST_F(TranscriptionStoreTest, TheFileIsTheDocumentedOne)
{
    TranscriptionStore store(files, clock);
    EXPECT_EQ(files.writes, 0) << "a first run writes nothing";
    EXPECT_EQ(store.examine().text, path);
    store.add(u"older"_s, std::nullopt);
    clock.advance(1999ms);
    store.add(u"line\n\r\"quoted\" \\ \t\u0001\u001f ünï/🎙"_s, u"work"_s);
    const auto ids = std::pair(store.items().at(0).id.toUtf8(), store.items().at(1).id.toUtf8());
    EXPECT_EQ(content(), R"([{"id":")" + ids.first +
                             R"(","text":"line\n\r\"quoted\" \\ \t\u0001\u001f ünï/🎙",)"
                             R"("timestamp":"2026-01-31T12:00:01Z","categoryId":"work"},{"id":")" +
                             ids.second + R"(","text":"older","timestamp":"2026-01-31T12:00:00Z"}])");
    static const QRegularExpression upperCaseUuid(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$"_s);
    EXPECT_TRUE(upperCaseUuid.match(QString::fromUtf8(ids.first)).hasMatch());
    EXPECT_EQ(TranscriptionStore(files, clock).items(), store.items());
}

TEST_F(TranscriptionStoreTest, EachChangeIsSavedAndTold)
{
    writeFile("\xEF\xBB\xBF" + QByteArray(threeEntries));
    TranscriptionStore store(files, clock);
    listen(store);
    EXPECT_EQ(texts(store.items(std::nullopt)), u"one two three"_s);
    EXPECT_EQ(texts(store.items(u"work"_s)), u"one"_s);
    EXPECT_TRUE(store.items(u"Work"_s).isEmpty());

    store.move(u"unknown"_s, u"home"_s);
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(files.writes, 0);
    store.move(u"B"_s, u"home"_s);
    EXPECT_EQ(told(), u"items changed1"_s);
    store.move(u"A"_s, std::nullopt);
    EXPECT_EQ(told(), u"items changed0"_s);
    EXPECT_EQ(content(), R"([{"id":"A","text":"one","timestamp":"2026-01-03T00:00:00Z"},)"
                         R"({"id":"B","text":"two","timestamp":"2026-01-02T00:00:00Z","categoryId":"home"},)"
                         R"({"id":"A","text":"three","timestamp":"2026-01-01T00:00:00Z"}])");
    store.remove(u"unknown"_s);
    EXPECT_EQ(told(), u"items reset"_s);
    EXPECT_EQ(files.writes, 3);
    store.remove(u"B"_s);
    EXPECT_EQ(told(), u"items removed1"_s);
    store.remove(u"A"_s);
    EXPECT_EQ(told(), u"items reset"_s) << "two had the identifier";
    store.add(u"new"_s, std::nullopt);
    EXPECT_EQ(told(), u"items added"_s);
    EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), u"new"_s);
    store.clear();
    EXPECT_EQ(told(), u"items reset"_s);
    EXPECT_EQ(content(), "[]");
}

TEST_F(TranscriptionStoreTest, WhatIsNoHistoryIsPutAsideBeforeAnotherBegins)
{
    const QByteArray entry = R"({"id":"A","text":"one","timestamp":"t"})";
    const QByteArray table[] = {
        "not json",
        "{}",
        "null",
        "[1]",
        "[[]]",
        R"([{"id":"A","text":"one"}])",
        R"([{"id":"A","text":"one","timestamp":5}])",
        R"([{"id":"A","text":"one","timestamp":"t","categoryId":7}])",
        "[" + entry + ",null]",
        "[" + entry + "] more",
        "[" + entry,
        "[" + QByteArray(entry).replace("one", "o\xffne") + "]",
        QByteArray(500'000, '['),
    };
    for (const QByteArray &json : table) {
        SCOPED_TRACE(json.left(60).toStdString());
        writeFile(json);
        TranscriptionStore store(files, clock);
        listen(store);
        EXPECT_TRUE(store.items().isEmpty());
        EXPECT_EQ(store.notice(), u"The history can't be read: a new one begins, the old file is kept"_s);
        EXPECT_EQ(store.examine().text, path + u" can't be read"_s);
        EXPECT_EQ(content(), json);
        clock.advance(1s);
        store.add(u"new"_s, std::nullopt);
        EXPECT_EQ(told(), u"notice items added"_s);
        EXPECT_EQ(store.notice(), QString());
        EXPECT_EQ(TranscriptionStore(files, clock).items(), store.items());
        const QStringList damaged = folder.entryList({u"transcriptions.json.damaged-*"_s}, QDir::Files, QDir::Name);
        EXPECT_LE(damaged.size(), 5);
        EXPECT_TRUE(store.examine().text.endsWith(damaged.last())) << store.examine().text.toStdString();
        EXPECT_EQ(contentOf(folder.filePath(damaged.last())), json);
    }
    EXPECT_TRUE(folder.exists(u"transcriptions.json.damaged-20260131T120013.000Z"_s));

    writeFile("");
    TranscriptionStore(files, clock).add(u"new"_s, std::nullopt);
    EXPECT_FALSE(folder.exists(u"transcriptions.json.damaged-20260131T120014.000Z"_s)) << "nothing was in it";
}

TEST_F(TranscriptionStoreTest, WhatCanBeReadOfADamagedHistoryIsTakenOver)
{
    const QString damaged = folder.filePath(u"damaged"_s);
    writeFile(R"([{"id":"X","text":"lost","timestamp)" + QByteArray(threeEntries).replace("two", "t{\xff").chopped(3));
    ASSERT_TRUE(QFile::rename(path, damaged));
    writeFile(R"([{"id":"C","text":"mine","timestamp":"2026-01-02T12:00:00Z"},
                  {"id":"B","text":"known","timestamp":"2026-01-01T12:00:00Z"}])");
    TranscriptionStore store(files, clock);
    EXPECT_EQ(store.recover(damaged), 1);
    EXPECT_EQ(texts(store.items()), u"one mine known"_s);
    store.clear();
    EXPECT_EQ(store.recover(damaged), 2);
    EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), u"one t{\uFFFD"_s);
    EXPECT_FALSE(store.recover(folder.filePath(u"missing"_s)));
}

TEST_F(TranscriptionStoreTest, TwoThatWriteKeepEachOthersEntries)
{
    writeFile(threeEntries);
    TranscriptionStore here(files, clock);
    TranscriptionStore there(files, clock);
    listen(here);
    there.add(u"theirs"_s, std::nullopt);
    there.remove(u"B"_s);
    here.add(u"ours"_s, std::nullopt);
    EXPECT_EQ(texts(here.items()), u"ours theirs one three"_s);
    EXPECT_EQ(told(), u"items reset"_s) << "more has changed than one entry";
    there.move(u"A"_s, u"home"_s);
    EXPECT_EQ(texts(there.items()), texts(here.items()));

    files.tellWatches();
    EXPECT_EQ(told(), u"items reset"_s);
    EXPECT_EQ(here.items(), there.items());
    files.tellWatches();
    EXPECT_EQ(told(), QString());

    there.add(u"unseen"_s, std::nullopt);
    here.clear();
    EXPECT_EQ(texts(here.items()), u"unseen"_s);
    ASSERT_TRUE(QFile::remove(path));
    files.tellWatches();
    here.add(u"after"_s, std::nullopt);
    EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), u"after unseen"_s);
}

TEST_F(TranscriptionStoreTest, WhatCannotBeSavedIsSaidOnceAndTriedAgain)
{
    {
        TranscriptionStore store(files, clock);
        listen(store);
        files.failsToWrite = true;
        store.add(u"one"_s, std::nullopt);
        EXPECT_EQ(told(), u"notice items added"_s);
        EXPECT_EQ(store.notice(), u"Kept in memory: the history can't be saved"_s);
        store.add(u"two"_s, std::nullopt);
        clock.advance(1min);
        EXPECT_EQ(told(), u"items added"_s);
        EXPECT_EQ(files.writes, 3);

        TranscriptionStore(files, clock); // nothing to save, nothing saved
        EXPECT_EQ(files.writes, 3);
        writeFile(R"([{"id":"C","text":"theirs","timestamp":"t"}])");
        ASSERT_TRUE(QDir(files.applicationSupportFolder()).removeRecursively()) << "and the folder goes";
        EXPECT_EQ(store.examine().text, folder.path() + u" can't be written: nothing new is kept"_s);
        files.failsToWrite = false;
        clock.advance(59s);
        EXPECT_EQ(content(), "no file");
        const int watches = files.watches;
        clock.advance(1s);
        EXPECT_GT(files.watches, watches) << "what was watched is gone";
        EXPECT_EQ(told(), u"notice"_s);
        EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), u"two one"_s);
        EXPECT_EQ(clock.pending(), 0);

        files.failsToWrite = true;
        store.add(u"last"_s, std::nullopt);
        writeFile(R"([{"id":"C","text":"theirs","timestamp":"t"}])");
        files.failsToWrite = false;
    }
    EXPECT_EQ(texts(TranscriptionStore(files, clock).items()), u"last theirs"_s) << "saved at the end";
}
