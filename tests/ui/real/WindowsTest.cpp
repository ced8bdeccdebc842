// SPDX-License-Identifier: MIT
#include "ui/Windows.h"

#include "TestClient.h"
#include "ViewDriver.h"
#include "platform/KeyCodes.h"
#include "platform/x11/TerminalClasses.h"
#include "platform/x11/X11Backend.h"
#include "shortcuts/CarbonHotKey.h"
#include "support/Printing.h"

#include <QGuiApplication>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

const VirtualDisplay *display = nullptr; // one for the whole program: an application has one display

class WindowsTest : public ::testing::Test {
protected:
    ViewDriver openHistory(bool editingGroups = false)
    {
        windows.history->show(editingGroups);
        return ViewDriver(*windows.historyView);
    }

    ViewDriver openSettings()
    {
        windows.settings->show();
        return ViewDriver(*windows.settingsView);
    }

    static QString clipboard()
    {
        return QString::fromUtf8(run(u"xclip"_s, {u"-o"_s, u"-selection"_s, u"clipboard"_s}, display->environment()));
    }

    QStringList groupNames() const
    {
        QStringList names;
        for (const DictationGroup &group : windows.groups.groups()) {
            names.append(group.name);
        }
        return names;
    }

    FakeClock clock;
    QString whyNot;
    std::unique_ptr<X11Backend> backend = X11Backend::create(clock, TerminalClasses::defaults(), &whyNot);
    Windows windows{&backend->pasteboard(), &backend->keyMonitors()};
};

/// The settings window with a shortcut that is armed for real, and a user at a real keyboard.
class RecorderTest : public WindowsTest {
protected:
    RecorderTest()
    {
        arm();
        windows.shortcuts.disarm = [this] { hotKey.reset(); };
        windows.shortcuts.arm = [this] { arm(); };
    }

    void arm()
    {
        hotKey = CarbonHotKey::create(backend->hotKeys(), 40, HotKeyModifier::control | HotKeyModifier::option,
                                      [this](bool isPressed) { presses += isPressed ? 1 : 0; });
    }

    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys) {
            user.press(key);
        }
        for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) {
            user.release(*key);
        }
    }

    /// Clicks the recorder and waits until it listens.
    void listen(ViewDriver &driver)
    {
        driver.click(driver.find("ShortcutRecorder", "title", u"Shortcut"_s));
        ASSERT_TRUE(driver.texts().contains(u"Type shortcut…"_s));
        ASSERT_EQ(hotKey, nullptr);
    }

    TestClient user{*display};
    std::unique_ptr<CarbonHotKey> hotKey;
    int presses = 0;
};

} // namespace

TEST_F(WindowsTest, RenamingAGroupChangesItsChipAtOnceAndEscapeClosesTheSheet)
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

TEST_F(WindowsTest, GroupsAreReorderedByDraggingAndByKeys)
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

TEST_F(WindowsTest, KeysReachEveryRowAndTheClipboard)
{
    windows.store.add(u"older text"_s, std::nullopt);
    windows.store.add(u"newer text"_s, std::nullopt);
    ViewDriver driver = openHistory();
    driver.press(Qt::Key_F, Qt::ControlModifier);
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
    driver.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(windows.history->isVisible());
}

TEST_F(WindowsTest, ALongTranscriptIsShownPieceByPiece)
{
    windows.store.add(u"This is a sentence of nine words, no more. "_s.repeated(2200), std::nullopt);
    windows.store.add(u"short"_s, std::nullopt);
    ViewDriver driver = openHistory();
    ASSERT_TRUE(await([&] { return driver.find("LongEntryText") != nullptr; }));
    const QQuickItem *const column = driver.find("LongEntryText");
    ASSERT_TRUE(await([&] { return column->height() > 10000; }));
    int laidOut = 0;
    for (const QQuickItem *loader : column->childItems()) {
        laidOut += loader->childItems().isEmpty() ? 0 : 1;
    }
    EXPECT_GT(laidOut, 0);
    EXPECT_LT(laidOut, 6);
}

TEST_F(WindowsTest, ClearingTheHistoryAsksFirst)
{
    windows.store.add(u"a"_s, std::nullopt);
    windows.store.add(u"b"_s, std::nullopt);
    ViewDriver driver = openSettings();
    const auto asks = [&] { return driver.texts().contains(u"Delete all 2 transcripts?"_s); };
    // The screen is too low for the whole window: what gets the focus comes into sight.
    driver.find("PushButton", "text", u"Clear…"_s)->forceActiveFocus(Qt::TabFocusReason);
    driver.click(driver.find("PushButton", "text", u"Clear…"_s));
    ASSERT_TRUE(await(asks));
    driver.press(Qt::Key_Escape);
    ASSERT_TRUE(await([&] { return !asks(); }));
    EXPECT_EQ(windows.store.items().size(), 2);

    driver.click(driver.find("PushButton", "text", u"Clear…"_s));
    ASSERT_TRUE(await(asks));
    driver.press(Qt::Key_Backtab); // from "Cancel"
    driver.press(Qt::Key_Return);
    EXPECT_TRUE(windows.store.items().isEmpty());
    EXPECT_FALSE(driver.find("PushButton", "text", u"Clear…"_s)->isEnabled());
}

TEST_F(WindowsTest, SettingsShowTheRowsThatTheStateAsksFor)
{
    ViewDriver driver = openSettings();
    const QString warning = u"A single key needs Accessibility (below) before it works."_s;
    const QString note =
        u"Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too."_s;
    struct Row {
        QVariantMap state;
        QStringList shown;
        QStringList hidden;
    };
    const Row table[]{
        {{}, {u"⌃⌥ Space"_s, u"4821"_s, u"Version —"_s}, {u"Key"_s, warning, note, u"Off"_s}},
        {{{u"singleKey"_s, 3}, {u"isFnKey"_s, true}, {u"isTrusted"_s, false}},
         {u"Key"_s, warning, note, u"Allow…"_s},
         {u"⌃⌥ Space"_s}},
        {{{u"balance"_s, QVariant()}, {u"hasConsent"_s, false}}, {u"—"_s, u"Off"_s}, {u"4821"_s}},
        {{{u"isUnmetered"_s, true}}, {u"Unmetered"_s}, {u"—"_s}},
        {{{u"groupShortcutError"_s, u"taken"_s}}, {u"taken"_s}, {}},
    };
    for (const Row &row : table) {
        for (auto value = row.state.begin(); value != row.state.end(); ++value) {
            windows.model.insert(value.key(), value.value());
        }
        const QStringList texts = driver.texts();
        for (const QString &text : row.shown) {
            EXPECT_TRUE(texts.contains(text)) << text.toStdString();
        }
        for (const QString &text : row.hidden) {
            EXPECT_FALSE(texts.contains(text)) << text.toStdString();
        }
    }
    EXPECT_FALSE(driver.find("PushButton", "text", u"Refresh"_s)->isEnabled());
    driver.click(driver.find("PushButton", "text", u"Allow…"_s));
    EXPECT_EQ(windows.calls[u"fixAccessibility"_s].toInt(), 1);
}

TEST_F(RecorderTest, RecordsTheCurrentCombinationAndNothingElseHearsOfIt)
{
    ViewDriver driver = openSettings();
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    ASSERT_TRUE(await([&] { return presses == 1; }));

    listen(driver);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    ASSERT_TRUE(await([&] { return windows.recorded.contains(u"shortcut ⌃⌥ K"_s); }));
    EXPECT_EQ(presses, 1);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    EXPECT_TRUE(await([&] { return presses == 2; }));

    listen(driver);
    press({KEY_LEFTCTRL, KEY_W}); // would close the window
    ASSERT_TRUE(await([&] { return windows.recorded.contains(u"shortcut ⌃ W"_s); }));
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K}); // comes after the window has had its chance
    ASSERT_TRUE(await([&] { return presses == 3; }));
    EXPECT_TRUE(windows.settingsView->isVisible());
}

TEST_F(RecorderTest, NamesKeysAsTheLayoutDoes)
{
    struct Row {
        QString layout;
        QString variant;
        int key;
        QString label;
    };
    ViewDriver driver = openSettings();
    for (const Row &row : {Row{u"us"_s, u"dvorak"_s, KEY_K, u"⌃⌥ T"_s}, Row{u"fr"_s, {}, KEY_Q, u"⌃⌥ A"_s},
                           Row{u"ru"_s, {}, KEY_F, u"⌃⌥ А"_s}, Row{u"de"_s, {}, KEY_Y, u"⌃⌥ Z"_s},
                           Row{u"us"_s, u"intl"_s, KEY_APOSTROPHE, u"⌃⌥ ´"_s}, Row{u"us"_s, {}, KEY_F6, u"⌃⌥ F6"_s}}) {
        run(u"setxkbmap"_s, {u"-layout"_s, row.layout, u"-variant"_s, row.variant}, display->environment());
        listen(driver);
        press({KEY_LEFTCTRL, KEY_LEFTALT, row.key});
        EXPECT_TRUE(
            await([&] { return windows.recorded.contains(u"shortcut "_s + row.label); }, std::chrono::seconds(2)))
            << row.layout.toStdString() << ' ' << row.variant.toStdString() << ": "
            << windows.recorded.join(u", "_s).toStdString();
        windows.recorded.clear();
    }
}

TEST_F(RecorderTest, TheShortcutsComeBackWhenTheWindowClosesOrLosesTheFocus)
{
    const auto isArmed = [this] { return hotKey != nullptr; };
    ViewDriver driver = openSettings();
    listen(driver);
    const auto other = user.addWindow();
    user.next(XCB_EXPOSE); // the window manager has shown it
    user.focus(other);
    EXPECT_TRUE(await(isArmed));
    EXPECT_FALSE(driver.texts().contains(u"Type shortcut…"_s));

    driver.view().requestActivate();
    ASSERT_TRUE(await([&] { return driver.view().isActive(); }));
    listen(driver);
    driver.view().close();
    EXPECT_TRUE(await(isArmed));
}

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    const VirtualDisplay ownDisplay(VirtualDisplay::WindowManager::Openbox);
    ownDisplay.use();
    display = &ownDisplay;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
