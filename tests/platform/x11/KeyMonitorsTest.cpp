// SPDX-License-Identifier: MIT
#include "X11Fixture.h"
#include "platform/KeyCodes.h"
#include "platform/x11/keys/X11KeyMonitors.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class KeyMonitorsTest : public X11Fixture {
protected:
    /// Events as text: "flags 61 80040", "key 0 40000 a".
    KeyMonitors::Handler logTo(std::vector<std::string> &events)
    {
        return [&events](const KeyEvent &event) {
            const bool modifier = event.type == KeyEvent::Type::FlagsChanged;
            auto text =
                QString::fromLatin1(event.canBeHotKey ? "" : "!") +
                (modifier ? u"flags %1 %2"_s : u"key %1 %2 "_s).arg(event.keyCode).arg(event.modifierFlags, 0, 16);
            events.push_back((text + event.charactersIgnoringModifiers.value_or(QString())).toStdString());
        };
    }

    std::vector<std::string> takeLog()
    {
        settle();
        return std::exchange(log, {});
    }

    bool focused = false;
    X11KeyMonitors monitors{*connection, *keymap, [this] { return focused; }};
    std::vector<std::string> log;
};

TEST_F(KeyMonitorsTest, ModifiersAreToldApartByTheirKeys)
{
    const struct {
        int key;
        const char *press;
        const char *release;
    } cases[] = {
        {KEY_LEFTCTRL, "flags 59 40001", "flags 59 0"},     {KEY_RIGHTCTRL, "flags 62 42000", "flags 62 0"},
        {KEY_LEFTSHIFT, "flags 56 20002", "flags 56 0"},    {KEY_RIGHTSHIFT, "flags 60 20004", "flags 60 0"},
        {KEY_LEFTALT, "flags 58 80020", "flags 58 0"},      {KEY_RIGHTALT, "flags 61 80040", "flags 61 0"},
        {KEY_LEFTMETA, "flags 55 100008", "flags 55 0"},    {KEY_RIGHTMETA, "flags 54 100010", "flags 54 0"},
        {KEY_CAPSLOCK, "flags 57 10000", "flags 57 10000"}, {KEY_CAPSLOCK, "flags 57 10000", "flags 57 0"},
    };
    const auto monitor = monitors.addGlobal(logTo(log));
    for (const auto &[key, press, release] : cases) {
        user.press(key);
        EXPECT_THAT(takeLog(), ElementsAre(press));
        user.release(key);
        EXPECT_THAT(takeLog(), ElementsAre(release));
    }
}

TEST_F(KeyMonitorsTest, KeysAreReportedOnceWithTheModifiersHeld)
{
    user.press(KEY_LEFTSHIFT); // before anybody listens
    const auto monitor = monitors.addGlobal(logTo(log));
    user.press(KEY_RIGHTALT);
    user.press(KEY_A);
    user.press(KEY_A); // auto-repeat
    user.release(KEY_A);
    user.release(KEY_LEFTSHIFT);
    user.release(KEY_RIGHTALT);
    EXPECT_THAT(takeLog(), ElementsAre("flags 61 a0042", "key 0 a0042 a", "flags 56 80040", "flags 61 0"));
}

TEST_F(KeyMonitorsTest, EachEventGoesToTheMonitorsOfOneSide)
{
    std::vector<std::string> local;
    const auto globalMonitor = monitors.addGlobal(logTo(log));
    const auto localMonitor = monitors.addLocal(logTo(local));
    user.tap(KEY_A);
    EXPECT_EQ(takeLog().size(), 1U);
    EXPECT_EQ(local.size(), 0U);
    focused = true;
    user.tap(KEY_A);
    EXPECT_EQ(takeLog().size(), 0U);
    EXPECT_EQ(local.size(), 1U);
}

TEST_F(KeyMonitorsTest, KeysAreSeenWhileAnotherClientGrabsTheKeyboard)
{
    const auto monitor = monitors.addGlobal(logTo(log));
    const auto window = user.addWindow();
    const XcbPtr<xcb_grab_keyboard_reply_t> grab(xcb_grab_keyboard_reply(
        user.xcb(),
        xcb_grab_keyboard(user.xcb(), 0, window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC), nullptr));
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    user.tap(KEY_RIGHTCTRL);
    EXPECT_THAT(takeLog(), ElementsAre("flags 62 42000", "flags 62 0"));
}

TEST_F(KeyMonitorsTest, KeysAreWhatTheLayoutMakesOfThem)
{
    const struct {
        const char *layouts;
        const char *variants;
        const char *options;
        uint8_t group;
        int modifier;
        int key;
        const char *event; // "!": no hot key
    } cases[] = {
        {"us", "dvorak", "", 0, KEY_LEFTSHIFT, KEY_V, "key 9 20002 k"},
        {"us,ru", "", "", 1, KEY_LEFTSHIFT, KEY_A, "key 0 20002 ф"},
        {"us,ru", "", "", 0, KEY_LEFTSHIFT, KEY_A, "key 0 20002 a"},
        {"us", "", "", 0, KEY_LEFTSHIFT, KEY_F5, "key 96 20002 "},
        {"us", "", "", 0, KEY_LEFTCTRL, KEY_KP5, "key 87 40001 5"},
        {"us", "", "", 0, KEY_LEFTCTRL, KEY_SYSRQ, "!key 65535 40001 "},
        {"us", "", "", 0, KEY_LEFTCTRL, KEY_PLAYPAUSE, "!key 65535 40001 "},
        {"de", "", "", 0, KEY_RIGHTALT, KEY_K, "!key 40 40 k"},
        {"us", "", "ctrl:nocaps", 0, KEY_CAPSLOCK, KEY_K, "key 40 40000 k"},
        {"us", "", "altwin:swap_lalt_lwin", 0, KEY_LEFTALT, KEY_K, "key 40 100020 k"},
        {"us", "", "altwin:ctrl_win", 0, KEY_LEFTMETA, KEY_K, "key 40 40008 k"},
        {"us", "", "caps:escape", 0, KEY_LEFTCTRL, KEY_CAPSLOCK, "key 53 40001 \x1B"},
    };
    for (const auto &testCase : cases) {
        setLayout(QString::fromLatin1(testCase.layouts), QString::fromLatin1(testCase.variants),
                  QString::fromLatin1(testCase.options));
        user.lockGroup(testCase.group);
        settle();
        user.press(testCase.modifier);
        const auto monitor = monitors.addGlobal(logTo(log));
        user.tap(testCase.key);
        EXPECT_THAT(takeLog(), ElementsAre(testCase.event));
        user.release(testCase.modifier);
    }
    EXPECT_TRUE(monitors.canSee(KeyCode::rightCommand));
    EXPECT_FALSE(monitors.canSee(KeyCode::fn)) << "beyond the key codes of the protocol";
}

TEST_F(KeyMonitorsTest, HandlerMayEndMonitors)
{
    std::unique_ptr<KeyMonitor> other;
    std::unique_ptr<KeyMonitor> own = monitors.addGlobal([&](const KeyEvent &) {
        own.reset();
        other.reset();
        log.emplace_back("ended");
    });
    other = monitors.addGlobal(logTo(log));
    user.tap(KEY_A);
    user.tap(KEY_B);
    EXPECT_THAT(takeLog(), ElementsAre("ended"));
}

TEST_F(KeyMonitorsTest, RawEventsAreAskedForOnlyWhileAMonitorExists)
{
    const EventCounter events(*connection, XCB_GE_GENERIC);
    user.tap(KEY_A);
    settle();
    EXPECT_EQ(events.count(), 0);
    monitors.addGlobal(logTo(log)).reset();
    user.tap(KEY_A);
    settle();
    EXPECT_EQ(events.count(), 0);
    const auto monitor = monitors.addLocal(logTo(log));
    user.tap(KEY_A);
    settle();
    EXPECT_EQ(events.count(), 2);
}

} // namespace
