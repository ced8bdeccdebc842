// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

const VirtualDisplay *WindowsTest::display = nullptr;

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
    const QQuickItem *const dialog = driver.find("QQuickPopupItem"); // its ground lies below all of it
    EXPECT_TRUE(dialog->contains(dialog->mapFromScene(driver.centre(driver.find("PushButton", "text", u"Cancel"_s)))));
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

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    const VirtualDisplay ownDisplay(VirtualDisplay::WindowManager::Openbox);
    ownDisplay.use();
    WindowsTest::display = &ownDisplay;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
