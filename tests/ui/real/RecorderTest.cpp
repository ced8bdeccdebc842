// SPDX-License-Identifier: MIT
#include "TestClient.h"
#include "WindowsFixture.h"
#include "platform/KeyCodes.h"
#include "shortcuts/CarbonHotKey.h"

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

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

TEST_F(RecorderTest, TheShortcutsStayOffWhileAnyRecorderListensAndComeBackWhenItsRowGoesAway)
{
    ViewDriver driver = openSettings();
    listen(driver);
    driver.click(driver.find("ShortcutRecorder", "title", u"Next group"_s));
    EXPECT_EQ(hotKey, nullptr);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    ASSERT_TRUE(await([&] { return windows.recorded.contains(u"group ⌃⌥ K"_s); }));
    EXPECT_NE(hotKey, nullptr);
    EXPECT_EQ(presses, 0);

    listen(driver);
    windows.model.insert(u"singleKey"_s, 0);
    EXPECT_NE(hotKey, nullptr);
}
