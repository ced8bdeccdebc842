// SPDX-License-Identifier: MIT
#include "TestClient.h"
#include "WindowsFixture.h"
#include "platform/KeyCodes.h"

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

/// The settings window with a shortcut that is armed for real, and a user at a real keyboard.
class RecorderTest : public WindowsTest {
protected:
    RecorderTest() : WindowsTest(true)
    {
        windows.model->setShortcut(Shortcut::combo(40, HotKeyModifier::control | HotKeyModifier::option, u"K"_s));
        QObject::connect(&windows.model->shortcuts(), &Shortcuts::dictationEvent,
                         [this](ShortcutEvent event) { presses += event == ShortcutEvent::Pressed ? 1 : 0; });
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
    }

    QString label() const { return windows.model->shortcut().label(); }

    TestClient user{*display};
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
    ASSERT_TRUE(await([&] { return driver.texts().contains(u"⌃⌥ K"_s); }));
    EXPECT_EQ(presses, 1);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    EXPECT_TRUE(await([&] { return presses == 2; }));

    listen(driver);
    press({KEY_LEFTCTRL, KEY_W}); // would close the window
    ASSERT_TRUE(await([&] { return label() == u"⌃ W"_s; }));
    press({KEY_LEFTCTRL, KEY_W}); // comes after the window has had its chance
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
    for (const Row &row : {Row{u"us"_s, u"dvorak"_s, KEY_K, u"⌃⌥ T"_s}, Row{u"us"_s, {}, KEY_F6, u"⌃⌥ F6"_s}}) {
        run(u"setxkbmap"_s, {u"-layout"_s, row.layout, u"-variant"_s, row.variant}, display->environment());
        listen(driver);
        press({KEY_LEFTCTRL, KEY_LEFTALT, row.key});
        EXPECT_TRUE(await([&] { return label() == row.label; }, std::chrono::seconds(2)))
            << row.layout.toStdString() << ": " << label().toStdString();
    }
}

TEST_F(RecorderTest, TheShortcutsComeBackWhenTheWindowClosesOrLosesTheFocus)
{
    const auto isArmed = [this] {
        const int before = presses;
        press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
        return await([&] { return presses > before; });
    };
    ViewDriver driver = openSettings();
    listen(driver);
    const auto other = user.addWindow();
    user.next(XCB_EXPOSE); // the window manager has shown it
    user.focus(other);
    EXPECT_TRUE(await([&] { return !driver.texts().contains(u"Type shortcut…"_s); }));
    EXPECT_TRUE(isArmed());

    driver.view().requestActivate();
    ASSERT_TRUE(await([&] { return driver.view().isActive(); }));
    listen(driver);
    driver.view().close();
    EXPECT_TRUE(isArmed());
}

TEST_F(RecorderTest, TheShortcutsStayOffWhileAnyRecorderListensAndComeBackWhenItsRowGoesAway)
{
    ViewDriver driver = openSettings();
    listen(driver);
    driver.click(driver.find("ShortcutRecorder", "title", u"Next group"_s));
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_J});
    ASSERT_TRUE(await([&] { return windows.model->groupShortcut().label() == u"⌃⌥ J"_s; }));
    EXPECT_EQ(presses, 0);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_K});
    EXPECT_TRUE(await([&] { return presses == 1; }));

    listen(driver);
    windows.model->setShortcut(Shortcut::modifier(ModifierKey::RightOption));
    EXPECT_FALSE(driver.texts().contains(u"Type shortcut…"_s));
    windows.groups.add(u"Work"_s);
    press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_J});
    EXPECT_TRUE(await([&] { return windows.groups.activeId().has_value(); }));
}
