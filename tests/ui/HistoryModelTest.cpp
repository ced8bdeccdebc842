// SPDX-License-Identifier: MIT
#include "ui/history/HistoryModel.h"

#include "FakePlatform.h"
#include "store/GroupStore.h"
#include "support/Await.h"
#include "support/Printing.h"
#include "ui/history/EntryDate.h"
#include "ui/history/TextPieces.h"

#include <QAbstractItemModelTester>
#include <QTextLayout>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class HistoryModelTest : public ::testing::Test {
protected:
    QVariant at(int row, HistoryRows::Role role) const { return rows.data(rows.index(row), role); }

    QString idAt(int row) const { return at(row, HistoryRows::EntryIdRole).toString(); }

    QStringList texts() const
    {
        QStringList shown;
        for (int row = 0; row < rows.rowCount(); ++row) {
            shown.append(at(row, HistoryRows::TextRole).toString());
        }
        return shown;
    }

    bool searchFor(const QString &text)
    {
        model.setSearch(text);
        return await([&] { return !model.isSearching(); });
    }

    FakePlatform fake;
    TranscriptionStore store{fake.files, fake.clock};
    GroupStore groups{fake.files, fake.preferences, fake.clock};
    HistoryModel model{store, groups, fake.pasteboard, fake.clock};
    const HistoryRows &rows = *model.rows();
    /// Fails the test when rows change without the model saying so.
    QAbstractItemModelTester tester{model.rows(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(EntryDateTest, SaysHowLongAgoInShortWords)
{
    const Clock::Instant now = std::chrono::sys_days(std::chrono::year(2026) / 3 / 5) + 12h;
    const std::pair<std::chrono::seconds, QString> table[]{
        {59s, u"just now"_s},         {61s, u"1 min ago"_s},          {90min, u"1 hr ago"_s},
        {3h + 5min, u"3 hrs ago"_s},  {24h, u"1 day ago"_s},          {25h, u"1 day, 1 hr ago"_s},
        {26h, u"1 day, 2 hrs ago"_s}, {48h + 40min, u"2 days ago"_s}, {-60s, u"just now"_s},
        {-72h, u"just now"_s},
    };
    for (const auto &[elapsed, text] : table) {
        EXPECT_EQ(EntryDate::relativeTime(now - elapsed, now), text);
    }
}

TEST(EntryDateTest, ReadsDatesWithAZoneAndTakesTheRestForTheDistantPast)
{
    const Clock::Instant noon = std::chrono::sys_days(std::chrono::year(2026) / 1 / 31) + 12h;
    const Clock::Instant distantPast = std::chrono::sys_days(std::chrono::year(1) / 1 / 1);
    const std::pair<QString, Clock::Instant> table[]{
        {u"2026-01-31T12:00:00Z"_s, noon},
        {u"2026-01-31T12:00:00.250Z"_s, noon + 250ms},
        {u"2026-01-31T13:00:00+01:00"_s, noon},
        {u"2026-01-31"_s, distantPast},
        {u"2026-01-31T12:00:00"_s, distantPast},
        {u"31 Jan 2026"_s, distantPast},
        {u""_s, distantPast},
    };
    for (const auto &[text, instant] : table) {
        EXPECT_EQ(EntryDate::parse(text), instant) << text.toStdString();
    }
}

TEST(TextPiecesTest, CutsWhereTheWholeTextBreaksItsLines)
{
    const QString text = u"This is a sentence of nine words, no more. "_s.repeated(2200) + u"\n\nEnd "_s +
                         QString(2000, u'x') + u"\nlast\n"_s;
    TextPieces pieces;
    pieces.setProperty("font", QFont(u"Liberation Sans"_s));
    static_cast<QQmlParserStatus &>(pieces).componentComplete();
    pieces.setText(text);
    bool isReplaced = true;
    QObject::connect(&pieces, &TextPieces::dataChanged, &pieces, [&] { isReplaced = true; });
    for (const qreal width : {352.0, 520.0}) {
        isReplaced = pieces.rowCount() == 0;
        pieces.setWidth(width);
        ASSERT_TRUE(await([&] { return isReplaced && pieces.restHeight() == 0; }));

        QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), QFont(u"Liberation Sans"_s));
        QTextOption option;
        option.setUseDesignMetrics(true);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        QSet<qsizetype> lineStarts;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lineStarts.insert(line.textStart());
        }
        QString joined;
        for (int row = 0; row < pieces.rowCount(); ++row) {
            const QModelIndex piece = pieces.index(row);
            const auto start = piece.data(TextPieces::StartRole).toLongLong();
            EXPECT_TRUE(lineStarts.contains(start)) << start;
            joined += QString(start - joined.size(), u'\n') + piece.data(TextPieces::ContentRole).toString();
            EXPECT_LE(joined.size() - start, 1000);
        }
        EXPECT_EQ(joined, text);
    }
}

TEST_F(HistoryModelTest, SearchesTheTextsWithoutRegardToCaseOrSurroundingBlanks)
{
    for (const QString &text : {u"Say Hello"_s, u"ÄRGER und Straße"_s, u"two\nlines"_s, u"مرحبا 🎉"_s}) {
        store.add(text, std::nullopt);
    }
    const std::pair<QString, QStringList> table[]{
        {u"hello"_s, {u"Say Hello"_s}},
        {u"ärger"_s, {u"ÄRGER und Straße"_s}},
        {u" \t"_s, texts()},
        {u"\tHELLO "_s, {u"Say Hello"_s}},
        {u"🎉"_s, {u"مرحبا 🎉"_s}},
        {u"o\nl"_s, {u"two\nlines"_s}},
        {u"zebra"_s, {}},
    };
    for (const auto &[query, found] : table) {
        ASSERT_TRUE(searchFor(query));
        EXPECT_EQ(texts(), found) << query.toStdString();
        EXPECT_EQ(model.countText(), u"4 entries"_s); // of the group, not of the search
    }
}

TEST_F(HistoryModelTest, ShowsTheActiveGroupAndCountsIt)
{
    EXPECT_TRUE(model.isEmpty());
    EXPECT_EQ(model.countText(), u"0 entries"_s);
    const QString work = groups.add(u"Work"_s).id;
    store.add(u"a"_s, work);
    store.add(u"b"_s, u"a deleted group"_s);
    EXPECT_EQ(at(0, HistoryRows::MetaRole), u"just now"_s);
    EXPECT_EQ(at(1, HistoryRows::MetaRole), u"just now · Work"_s);
    EXPECT_TRUE(at(0, HistoryRows::ShowDividerRole).toBool());
    EXPECT_FALSE(at(1, HistoryRows::ShowDividerRole).toBool());

    groups.setActiveId(work);
    EXPECT_EQ(texts(), QStringList{u"a"_s});
    EXPECT_EQ(model.countText(), u"1 entry"_s);
    EXPECT_EQ(at(0, HistoryRows::MetaRole), u"just now"_s);
    model.move(idAt(0), {});
    EXPECT_TRUE(model.isEmpty());
}

TEST_F(HistoryModelTest, OffersEveryOtherGroupToMoveTo)
{
    const QString work = groups.add(u"Work"_s).id;
    groups.add(u""_s);
    store.add(u"a"_s, std::nullopt);
    const auto offered = [&] {
        QStringList targets;
        for (const MoveTarget &target : model.moveTargets(idAt(0))) {
            targets.append(target.name + (target.isEnabled ? u"+"_s : u"-"_s));
        }
        return targets;
    };
    EXPECT_EQ(offered(), QStringList({u"All entries-"_s, u"Work+"_s, u"+"_s}));
    model.move(idAt(0), work);
    EXPECT_EQ(offered(), QStringList({u"All entries+"_s, u"Work-"_s, u"+"_s}));
}

TEST_F(HistoryModelTest, MarksTheNewestCopyForThreeSeconds)
{
    store.add(u"older"_s, std::nullopt);
    store.add(u"newer"_s, std::nullopt);
    const auto marks = [&] {
        return std::pair(at(0, HistoryRows::IsCopiedRole).toBool(), at(1, HistoryRows::IsCopiedRole).toBool());
    };
    model.copy(idAt(0));
    EXPECT_EQ(fake.pasteboard.string(), u"newer"_s);
    EXPECT_EQ(marks(), std::pair(true, false));
    fake.clock.advance(2s);
    model.copy(idAt(1));
    EXPECT_EQ(marks(), std::pair(false, true));
    fake.clock.advance(2999ms);
    EXPECT_EQ(marks(), std::pair(false, true));
    fake.clock.advance(1ms);
    EXPECT_EQ(marks(), std::pair(false, false));
}

TEST_F(HistoryModelTest, AnEntryThatIsGoneIsLeftAlone)
{
    store.add(u"gone"_s, std::nullopt);
    const QString id = idAt(0);
    store.add(u"stays"_s, std::nullopt);
    model.remove(id);
    model.remove(id);
    model.copy(id);
    model.move(id, groups.add(u"Work"_s).id);
    EXPECT_TRUE(model.moveTargets(id).isEmpty());
    EXPECT_EQ(texts(), QStringList{u"stays"_s});
    EXPECT_EQ(fake.pasteboard.string(), QString());
}

TEST_F(HistoryModelTest, AgesMoveOnTheMinuteWhileTheWindowIsOpen)
{
    fake.clock.set(fake.clock.now() + 45s);
    store.add(u"a"_s, std::nullopt);
    int changes = 0;
    QObject::connect(&rows, &HistoryRows::dataChanged, &model, [&] { ++changes; });
    fake.clock.advance(1h);
    EXPECT_EQ(changes, 0);
    model.setLive(true);
    changes = 0;
    fake.clock.advance(14999ms);
    EXPECT_EQ(changes, 0);
    fake.clock.advance(1ms);
    EXPECT_EQ(changes, 1);
    fake.clock.advance(2min);
    EXPECT_EQ(changes, 3);
}

TEST_F(HistoryModelTest, StaysTrueToTheStoreThroughAnyChanges)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same changes in every run
    const auto below = [&](size_t limit) { return qsizetype(random() % limit); };
    const std::array ids{groups.add(u"A"_s).id, groups.add(u"B"_s).id};
    const auto anyGroup = [&] {
        const auto choice = below(3);
        return choice == 2 ? std::nullopt : std::optional(ids.at(size_t(choice)));
    };
    for (int step = 0; step < 600; ++step) {
        const bool isEmpty = store.items().isEmpty();
        switch (below(isEmpty ? 1 : 8)) {
        case 1:
            store.remove(QString(store.items().at(below(size_t(store.items().size()))).id));
            break;
        case 2:
            store.move(QString(store.items().at(below(size_t(store.items().size()))).id), anyGroup());
            break;
        case 3:
            groups.setActiveId(anyGroup());
            break;
        case 4:
            model.setSearch(QStringList{u""_s, u"1"_s, u"12"_s, u"x"_s}.at(below(4)));
            break;
        case 5:
            if (below(20) == 0) {
                store.clear();
            }
            break;
        default:
            store.add(u"entry %1"_s.arg(step), anyGroup());
        }
        ASSERT_TRUE(await([&] { return !model.isSearching(); }));
        QStringList expected;
        for (const Transcription &entry : store.items(groups.activeId())) {
            if (entry.text.contains(model.search())) {
                expected.append(entry.text);
            }
        }
        ASSERT_EQ(texts(), expected) << "after step " << step;
        ASSERT_EQ(model.countText().section(u' ', 0, 0).toInt(), store.items(groups.activeId()).size());
    }
}
