// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include "platform/KeyCodes.h"

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
    FakePlatform &fake = windows.fake;
    AppModel &model = *windows.model;
    const QString warning = u"A single key needs Accessibility (below) before it works."_s;
    const QString note =
        u"Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too."_s;
    const QString unseen =
        u"This key doesn't arrive here: the keyboard or the desktop keeps it to itself. Choose another one."_s;
    const QString taken = u"⌃⌥ G is already in use. Pick a different shortcut."_s;
    struct Row {
        std::function<void()> change;
        QStringList shown;
        QStringList hidden;
    };
    const Row table[]{
        {[] {}, {u"⌃⌥ Space"_s, u"⌃⌥ G"_s, u"⌃⌥ H"_s, u"4821"_s, u"Version —"_s}, {u"Key"_s, warning, note, u"Off"_s}},
        {[&] { model.setShortcut(Shortcut::modifier(ModifierKey::Fn)); },
         {u"Key"_s, u"Fn (🌐)"_s, note},
         {u"⌃⌥ Space"_s, u"Allow…"_s, warning, unseen}},
        {[&] {
             fake.keyMonitors.unseen = KeyCode::rightOption;
             model.setShortcut(Shortcut::modifier(ModifierKey::RightOption));
         },
         {unseen},
         {note}},
        {[&] {
             fake.accessibility.trusted = false;
             fake.clock.advance(std::chrono::seconds(2));
         },
         {warning, u"Allow…"_s},
         {}},
        {[&] {
             windows.consent.withdraw();
             model.showConsent(true);
             fake.application.front->close();
         },
         {u"Off"_s},
         {}},
        {[&] {
             fake.hotKeys.takenByOthers = {{KeyCode::g, HotKeyModifier::control | HotKeyModifier::option}};
             model.armWindowShortcuts();
         },
         {taken},
         {}},
        {[&] { model.setGroupShortcut(Shortcut::combo(96, 0, u"F5"_s)); }, {u"F5"_s}, {taken, u"⌃⌥ G"_s}},
        {[&] { model.setTriggerMode(TriggerMode::Hold); }, {u"Hold to talk only"_s}, {}},
    };
    for (const Row &row : table) {
        row.change();
        const QStringList texts = driver.texts();
        for (const QString &text : row.shown) {
            EXPECT_TRUE(texts.contains(text)) << text.toStdString();
        }
        for (const QString &text : row.hidden) {
            EXPECT_FALSE(texts.contains(text)) << text.toStdString();
        }
    }
    EXPECT_FALSE(driver.find("PushButton", "text", u"Refresh"_s)->isEnabled());
}

TEST_F(WindowsTest, SettingsControlsDoWhatTheySay)
{
    AppModel &model = *windows.model;
    ViewDriver driver = openSettings();
    const auto click = [&](const QString &text) {
        QQuickItem *const button = driver.find("PushButton", "text", text);
        button->forceActiveFocus(Qt::TabFocusReason); // the screen is lower than the window
        driver.click(button);
    };
    driver.click(driver.find("QQuickText", "text", u"Hold a single key"_s));
    EXPECT_EQ(model.shortcut(), Shortcut::modifier(ModifierKey::RightOption));
    driver.click(driver.find("QQuickText", "text", u"Key combination"_s));
    EXPECT_EQ(model.shortcut().label(), u"⌃⌥ Space"_s);

    driver.find("SwitchControl")->forceActiveFocus(Qt::TabFocusReason);
    driver.press(Qt::Key_Space);
    EXPECT_TRUE(model.launchesAtLogin());

    windows.server.onRequest = [](const HttpServer::Request &) {
        return HttpServer::Response{200, R"({"balance":3,"unmetered":true})"};
    };
    click(u"Refresh"_s);
    EXPECT_TRUE(await([&] { return driver.texts().contains(u"Unmetered"_s); }));

    windows.fake.accessibility.trusted = false;
    windows.fake.clock.advance(std::chrono::seconds(2));
    click(u"Allow…"_s);
    EXPECT_EQ(windows.fake.accessibility.prompts, 1);

    click(u"Review…"_s);
    EXPECT_TRUE(windows.fake.application.front->findChild<DisclosureView *>()->isReview());
    driver.view().requestActivate();
    click(u"Edit…"_s);
    EXPECT_TRUE(windows.history->isEditingGroups());
}

TEST_F(WindowsTest, ABalanceThatIsNotKnownIsNotShown)
{
    Windows offline({.hasBackend = false});
    offline.settings->show();
    EXPECT_TRUE(ViewDriver(*offline.settingsView).texts().contains(u"—"_s));
    offline.history->show(false);
    EXPECT_FALSE(ViewDriver(*offline.historyView).texts().contains(u"0 TOKENS"_s));
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
