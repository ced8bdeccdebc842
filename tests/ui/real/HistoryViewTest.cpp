// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

class HistoryViewTest : public WindowsTest {
protected:
    void addGroups(int count)
    {
        for (int number = 1; number <= count; ++number) {
            windows.groups.add(u"group %1"_s.arg(number));
        }
    }
};

const QString longText = u"This is a sentence of nine words, no more. "_s.repeated(2200);

} // namespace

TEST_F(HistoryViewTest, RenamingAGroupChangesItsChipAtOnceAndEscapeClosesTheSheet)
{
    windows.groups.add(u"Work"_s);
    ViewDriver driver = openHistory(true);
    ASSERT_TRUE(await([&] { return driver.find("PaperField", "text", u"Work"_s) != nullptr; }));
    driver.click(driver.find("PaperField", "text", u"Work"_s));
    driver.press(Qt::Key_End);
    driver.type(u"shop"_s);
    EXPECT_EQ(groupNames(), QStringList{u"Workshop"_s});
    EXPECT_NE(driver.find("Chip", "name", u"Workshop"_s), nullptr);

    driver.press(Qt::Key_Escape);
    EXPECT_TRUE(await([&] { return !windows.history->isEditingGroups(); }));
    EXPECT_TRUE(await([&] { return driver.find("GroupList") == nullptr; }));
    driver.click(driver.find("Chip", "name", u"Workshop"_s));
    EXPECT_EQ(windows.groups.activeId(), windows.groups.groups().first().id);
    driver.click(driver.find("PillButtonStyle", "text", u"Edit"_s));
    EXPECT_TRUE(windows.history->isEditingGroups());
}

TEST_F(HistoryViewTest, GroupsAreReorderedByDraggingAndByKeys)
{
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s}) {
        windows.groups.add(name);
    }
    ViewDriver driver = openHistory(true);
    ASSERT_TRUE(await([&] { return driver.find("GroupRow", "name", u"A"_s) != nullptr; }));
    const QQuickItem *const row = driver.find("GroupRow", "name", u"A"_s);
    const QPoint grip = row->mapToScene({10, row->height() / 2}).toPoint();
    QTest::mousePress(&driver.view(), Qt::LeftButton, {}, grip);
    for (int y = 4; y <= 44; y += 8) {
        QTest::mouseMove(&driver.view(), grip + QPoint(0, y));
    }
    QTest::mouseRelease(&driver.view(), Qt::LeftButton, {}, grip + QPoint(0, 44));
    EXPECT_EQ(groupNames(), QStringList({u"B"_s, u"A"_s, u"C"_s}));

    driver.click(driver.find("PaperField", "text", u"C"_s));
    driver.press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(groupNames(), QStringList({u"B"_s, u"C"_s, u"A"_s}));
}

TEST_F(HistoryViewTest, KeysReachEveryRowAndTheClipboard)
{
    windows.store.add(u"older text"_s, std::nullopt);
    windows.store.add(u"newer text"_s, std::nullopt);
    ViewDriver driver = openHistory();
    driver.press(Qt::Key_Tab); // from the search field, where the focus begins
    driver.type(u"TEXT"_s);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), u"older text"_s);
    EXPECT_TRUE(driver.texts().contains(u"COPIED"_s));

    const QQuickItem *const text = driver.find("EntryPiece", "content", u"newer text"_s);
    QTest::mouseDClick(&driver.view(), Qt::LeftButton, {}, text->mapToScene({10, 8}).toPoint());
    driver.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), u"newer"_s);

    driver.press(Qt::Key_Delete);
    ASSERT_EQ(windows.store.items().size(), 1);
    EXPECT_EQ(windows.store.items().first().text, u"older text"_s);
    for (const auto &[key, modifiers] : {std::pair(Qt::Key_W, Qt::ControlModifier), {Qt::Key_Escape, {}}}) {
        openHistory().press(key, modifiers);
        EXPECT_FALSE(windows.history->isVisible());
    }
}

TEST_F(HistoryViewTest, ALongTranscriptIsShownPieceByPiece)
{
    windows.store.add(longText, std::nullopt);
    windows.store.add(u"short"_s, std::nullopt);
    ViewDriver driver = openHistory();
    ASSERT_TRUE(await([&] { return driver.find("LongEntryText") != nullptr; }));
    const QQuickItem *const text = driver.find("LongEntryText");
    ASSERT_TRUE(await([&] { return text->height() > 10000; }));
    int laidOut = 0;
    for (const QQuickItem *loader : text->childItems().first()->childItems()) {
        const bool isLaidOut = !loader->childItems().isEmpty();
        laidOut += isLaidOut ? 1 : 0;
        // What was expected of its height is what it has.
        if (isLaidOut && loader->metaObject()->indexOfProperty("pieceHeight") >= 0) {
            EXPECT_DOUBLE_EQ(loader->height(), loader->property("pieceHeight").toReal());
        }
    }
    EXPECT_GT(laidOut, 0);
    EXPECT_LT(laidOut, 6);
}

TEST_F(HistoryViewTest, ASelectionInALongTranscriptRunsThroughItsPieces)
{
    windows.store.add(u"another "_s.repeated(1000), std::nullopt);
    windows.store.add(longText, std::nullopt);
    ViewDriver driver = openHistory();
    ASSERT_TRUE(await([&] { return driver.find("LongEntryText") != nullptr; }));
    const QQuickItem *const text = driver.find("LongEntryText");
    const auto second = [&] { return text->childItems().first()->childItems().at(1); };
    ASSERT_TRUE(await([&] { return !second()->childItems().isEmpty(); }));
    const auto at = [&](int x, int y) { return text->mapToScene({double(x), double(y)}).toPoint(); };
    const auto copied = [&] {
        driver.press(Qt::Key_C, Qt::ControlModifier);
        return clipboard();
    };
    QTest::mouseDClick(&driver.view(), Qt::LeftButton, {}, at(80, 8));
    EXPECT_EQ(copied(), u"sentence"_s);

    driver.drag(at(80, 8), at(0, 395));
    const QString dragged = copied();
    EXPECT_GT(dragged.size(), 900); // more than a piece
    EXPECT_TRUE(longText.contains(dragged));
    const QQuickItem *const piece = second()->childItems().first();
    EXPECT_TRUE(dragged.endsWith(piece->property("selectedText").toString())); // it shows its part
    EXPECT_EQ(piece->property("selectionStart").toInt(), 0);
    QTest::mouseClick(&driver.view(), Qt::LeftButton, Qt::ShiftModifier, at(0, 200));
    EXPECT_TRUE(dragged.startsWith(copied()));
    EXPECT_LT(clipboard().size(), dragged.size());

    driver.press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), longText);
    windows.store.remove(QString(windows.store.items().first().id)); // the row shows the other one now
    windows.store.add(u"z"_s, std::nullopt);
    ASSERT_TRUE(
        await([&] { return driver.find("LongEntryText", "text", windows.store.items().last().text) != nullptr; }));
    EXPECT_EQ(driver.find("LongEntryText")->property("selectedText"), QString());
}

TEST_F(HistoryViewTest, TheContextMenuActsOnTheEntryItWasOpenedFor)
{
    const QString work = windows.groups.add(u"Work"_s).id;
    windows.store.add(u"older"_s, work);
    windows.store.add(u"newer"_s, std::nullopt);
    ViewDriver driver = openHistory();
    ASSERT_TRUE(await([&] { return driver.find("EntryRow", "text", u"older"_s) != nullptr; }));
    QTest::mouseClick(&driver.view(), Qt::RightButton, {}, driver.centre(driver.find("EntryRow", "text", u"older"_s)));
    const auto item = [&](const QString &text) { return driver.find("PaperMenuItem", "text", text); };
    ASSERT_TRUE(await([&] { return item(u"Delete"_s) != nullptr; }));
    const auto y = [&](const QQuickItem *part) { return part == nullptr ? -1 : part->mapToScene({}).y(); };
    const std::array places{y(item(u"Copy"_s)), y(item(u"Move to Group"_s)), y(driver.find("QQuickMenuSeparator")),
                            y(item(u"Delete"_s))};
    EXPECT_TRUE(places.front() > 0 && std::ranges::is_sorted(places));

    windows.store.add(u"just arrived"_s, std::nullopt);
    driver.click(item(u"Delete"_s));
    EXPECT_EQ(windows.store.items().size(), 2);
    EXPECT_NE(windows.store.items().last().text, u"older"_s);

    // By keys: the newest row, which has no group, moves to Work.
    driver.press(Qt::Key_Home);
    driver.press(Qt::Key_Menu);
    ASSERT_TRUE(await([&] { return item(u"Delete"_s) != nullptr; }));
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_Right);
    ASSERT_TRUE(await([&] { return item(u"All entries"_s) != nullptr; }));
    EXPECT_FALSE(item(u"All entries"_s)->isEnabled());
    EXPECT_TRUE(item(u"Work"_s)->isEnabled());
    for (int step = 0; step < 3 && !item(u"Work"_s)->property("highlighted").toBool(); ++step) {
        driver.press(Qt::Key_Down);
    }
    driver.press(Qt::Key_Return);
    EXPECT_EQ(windows.store.items().first().categoryId, work);
}

TEST_F(HistoryViewTest, AKeyHeldDownActsOnce)
{
    for (const QString &text : {u"a"_s, u"b"_s, u"c"_s}) {
        windows.store.add(text, std::nullopt);
    }
    addGroups(3);
    ViewDriver driver = openHistory();
    driver.press(Qt::Key_F, Qt::ControlModifier);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_Delete);
    driver.repeat(Qt::Key_Delete);
    EXPECT_EQ(windows.store.items().size(), 2);

    windows.history->setEditingGroups(true);
    int left = 3;
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        --left;
        ASSERT_TRUE(await([&] { return driver.find("PaperField", "text", u"group %1"_s.arg(4 - left)) != nullptr; }));
        driver.find("PaperField", "text", u"group %1"_s.arg(3 - left))->forceActiveFocus();
        driver.press(Qt::Key_Tab);
        driver.press(key);
        driver.repeat(key);
        EXPECT_EQ(windows.groups.groups().size(), left);
    }
}

TEST_F(HistoryViewTest, DeletingOrDraggingAGroupLeavesItsNeighboursAlone)
{
    addGroups(4);
    ViewDriver driver = openHistory(true);
    ASSERT_TRUE(await([&] { return driver.find("PaperField", "text", u"group 1"_s) != nullptr; }));
    const auto rowOf = [&](int number) { return driver.find("GroupRow", "name", u"group %1"_s.arg(number)); };
    const QQuickItem *const first = rowOf(1);
    const QPoint trash = first->mapToScene({first->width() - 19, first->height() / 2}).toPoint();
    QTest::mouseDClick(&driver.view(), Qt::LeftButton, {}, trash);
    driver.press(Qt::Key_Space);
    EXPECT_EQ(groupNames(), QStringList({u"group 2"_s, u"group 3"_s, u"group 4"_s}));

    const QPoint grip = rowOf(2)->mapToScene({10, first->height() / 2}).toPoint();
    driver.drag(grip, grip + QPoint(0, 44), {}, Qt::Key_Escape);
    EXPECT_EQ(groupNames().first(), u"group 2"_s);
    EXPECT_TRUE(windows.history->isEditingGroups());
}

TEST_F(HistoryViewTest, TabGoesThroughALongListOfGroupsAndBringsEachIntoSight)
{
    addGroups(20);
    ViewDriver driver = openHistory(true);
    ASSERT_TRUE(await([&] { return driver.find("PaperField", "text", u"group 20"_s) != nullptr; }));
    const QQuickItem *const list = driver.find("GroupList");
    const auto isInSight = [&](const QQuickItem *item) {
        const QRectF place = item->mapRectToItem(list, item->boundingRect());
        return list->boundingRect().contains(place);
    };
    const auto focused = [&] { return driver.view().activeFocusItem(); };
    driver.click(driver.find("PaperField", "text", u"group 1"_s));
    for (int number = 1; number <= 20; ++number) {
        EXPECT_EQ(focused()->property("text"), u"group %1"_s.arg(number));
        EXPECT_TRUE(isInSight(focused())) << number;
        driver.press(Qt::Key_Tab); // to the button that deletes it
        driver.press(Qt::Key_Tab);
    }
    EXPECT_EQ(focused()->property("placeholderText"), u"New group"_s);
    driver.press(Qt::Key_Backtab);
    driver.press(Qt::Key_Backtab);
    for (int step = 0; step < 19; ++step) {
        driver.press(Qt::Key_Up, Qt::AltModifier);
    }
    EXPECT_EQ(groupNames().first(), u"group 20"_s);
    EXPECT_TRUE(isInSight(focused()));

    driver.click(driver.find("PaperField", "placeholderText", u"New group"_s));
    driver.type(u"last"_s);
    driver.press(Qt::Key_Return);
    ASSERT_TRUE(await([&] {
        const QQuickItem *const added = driver.find("GroupRow", "name", u"last"_s);
        return added != nullptr && isInSight(added);
    }));

    // A row dragged to the upper edge pulls the list along.
    const QQuickItem *const row = driver.find("GroupRow", "name", u"last"_s);
    const QPoint grip = row->mapToScene({10, row->height() / 2}).toPoint();
    const QPoint edge = list->mapToScene({10, 8}).toPoint();
    QTest::mousePress(&driver.view(), Qt::LeftButton, {}, grip);
    for (const QPoint &point : {grip - QPoint(0, 20), grip - QPoint(0, 40), edge}) {
        QTest::mouseMove(&driver.view(), point);
    }
    ASSERT_TRUE(await([&] { return isInSight(driver.find("GroupRow", "name", u"group 20"_s)); }));
    QTest::mouseRelease(&driver.view(), Qt::LeftButton, {}, edge);
    EXPECT_EQ(groupNames().first(), u"last"_s);
}

TEST_F(HistoryViewTest, TabAndArrowKeysReachEveryPartOfTheWindow)
{
    windows.store.add(u"a"_s, std::nullopt);
    addGroups(2);
    ViewDriver driver = openHistory();
    driver.press(Qt::Key_F, Qt::ControlModifier);
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        const QAccessibleInterface *const focused =
            QAccessible::queryAccessibleInterface(driver.view().activeFocusItem());
        order.append(focused->text(QAccessible::Name));
        driver.press(Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(u", "_s), u"Search transcriptions, a, just now, Copy, Edit groups, Current group"_s);
    driver.press(Qt::Key_Backtab);
    const auto active = [&] { return windows.groups.group(windows.groups.activeId()).value_or(DictationGroup{}).name; };
    driver.press(Qt::Key_Right);
    driver.press(Qt::Key_Right);
    EXPECT_EQ(active(), u"group 2"_s);
    driver.press(Qt::Key_Left);
    EXPECT_EQ(active(), u"group 1"_s);
}

TEST_F(HistoryViewTest, ATranscriptThatArrivesShowsAtTheTop)
{
    for (int number = 0; number < 30; ++number) {
        windows.store.add(u"entry %1"_s.arg(number), std::nullopt);
    }
    ViewDriver driver = openHistory();
    ASSERT_TRUE(await([&] { return driver.find("EntryPiece", "content", u"entry 29"_s) != nullptr; }));
    windows.store.add(u"newest"_s, std::nullopt);
    EXPECT_TRUE(await([&] {
        const QQuickItem *const newest = driver.find("EntryPiece", "content", u"newest"_s);
        const QQuickItem *const search = driver.find("SearchField");
        return newest != nullptr && newest->mapToScene({}).y() > search->mapToScene({0, search->height()}).y();
    }));
}
