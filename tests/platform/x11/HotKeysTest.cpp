// SPDX-License-Identifier: MIT
#include "X11Fixture.h"
#include "platform/KeyCodes.h"
#include "platform/x11/keys/X11HotKeys.h"
#include "support/Await.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr uint32_t f5 = 96;
constexpr uint32_t f6 = 97;

class HotKeysTest : public X11Fixture {
protected:
    HotKeys::Handler logAs(std::string name)
    {
        return [this, name = std::move(name)](bool pressed) { log.push_back((pressed ? "+" : "-") + name); };
    }

    std::vector<std::string> takeLog()
    {
        settle();
        return std::exchange(log, {});
    }

    X11HotKeys hotKeys{*connection, *keymap};
    std::vector<std::string> log;
};

TEST_F(HotKeysTest, PressAndReleaseAreReportedWhateverTheLockKeysSay)
{
    const auto plain = hotKeys.add(f5, 0, logAs("F5"));
    const auto chord =
        hotKeys.add(KeyCode::space, HotKeyModifier::control | HotKeyModifier::option, logAs("Ctrl+Alt+Space"));
    ASSERT_TRUE(plain && chord);
    for (const auto &locks : std::vector<std::vector<int>>{
             {}, {KEY_CAPSLOCK}, {KEY_NUMLOCK}, {KEY_SCROLLLOCK}, {KEY_CAPSLOCK, KEY_NUMLOCK}}) {
        for (const int lock : locks) {
            user.tap(lock);
        }
        user.tap(KEY_F5);
        EXPECT_THAT(takeLog(), ElementsAre("+F5", "-F5"));
        user.press(KEY_LEFTCTRL);
        user.press(KEY_LEFTALT);
        user.press(KEY_SPACE);
        EXPECT_THAT(takeLog(), ElementsAre("+Ctrl+Alt+Space"));
        user.release(KEY_LEFTALT);
        user.release(KEY_LEFTCTRL);
        EXPECT_THAT(takeLog(), IsEmpty());
        user.release(KEY_SPACE); // its modifiers are long gone
        EXPECT_THAT(takeLog(), ElementsAre("-Ctrl+Alt+Space"));
        for (const int lock : locks) {
            user.tap(lock);
        }
    }
}

TEST_F(HotKeysTest, AnotherModifierMakesItAnotherCombination)
{
    const auto plain = hotKeys.add(f5, 0, logAs("F5"));
    const auto chord = hotKeys.add(f6, HotKeyModifier::command, logAs("Super+F6"));
    for (const int modifier : {KEY_LEFTSHIFT, KEY_RIGHTCTRL, KEY_LEFTALT}) {
        user.press(modifier);
        user.tap(KEY_F5);
        user.press(KEY_LEFTMETA);
        user.tap(KEY_F6);
        user.release(KEY_LEFTMETA);
        user.release(modifier);
    }
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(HotKeysTest, AutoRepeatIsNeitherPressNorRelease)
{
    const auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    const EventCounter presses(*connection, XCB_KEY_PRESS);
    user.press(KEY_F5);
    ASSERT_TRUE(await([&] { return presses.count() >= 3; })) << "the server repeats the key";
    EXPECT_THAT(takeLog(), ElementsAre("+F5"));
    user.release(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("-F5"));
}

TEST_F(HotKeysTest, CombinationOfAnotherClientIsRefusedAndLeftAlone)
{
    ASSERT_TRUE(user.grabsKey(KEY_F5, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK)); // one of several is enough
    EXPECT_FALSE(hotKeys.add(f5, HotKeyModifier::control, logAs("")));
    settle();
    EXPECT_TRUE(user.grabsKey(KEY_F5, XCB_MOD_MASK_CONTROL));
    EXPECT_TRUE(hotKeys.add(f5, HotKeyModifier::shift, logAs("")));
}

TEST_F(HotKeysTest, CombinationIsTakenUntilItsRegistrationEnds)
{
    auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    EXPECT_FALSE(hotKeys.add(f5, 0, logAs("")));
    EXPECT_FALSE(user.grabsKey(KEY_F5, 0));
    hotKey.reset();
    hotKey = hotKeys.add(f5, 0, logAs("again"));
    ASSERT_TRUE(hotKey);
    user.tap(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("+again", "-again"));
    hotKey.reset();
    settle();
    EXPECT_TRUE(user.grabsKey(KEY_F5, 0));
}

TEST_F(HotKeysTest, KeyThatDoesNotExistHereIsRefused)
{
    EXPECT_FALSE(hotKeys.add(KeyCode::fn, 0, logAs("")));
    EXPECT_FALSE(hotKeys.add(0xFFFF, 0, logAs("")));
}

TEST_F(HotKeysTest, HotKeysWorkWhileAnotherIsHeld)
{
    const auto hold = hotKeys.add(f5, 0, logAs("F5"));
    const auto escape = hotKeys.add(KeyCode::escape, 0, logAs("Esc"));
    user.press(KEY_F5);
    user.tap(KEY_A);
    user.tap(KEY_ESC);
    user.tap(KEY_ESC);
    user.release(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("+F5", "+Esc", "-Esc", "+Esc", "-Esc", "-F5"));
}

TEST_F(HotKeysTest, ReleaseIsReportedThoughTheFirstHotKeyIsReleasedBefore)
{
    const auto hold = hotKeys.add(f5, 0, logAs("F5"));
    const auto escape = hotKeys.add(KeyCode::escape, 0, logAs("Esc"));
    const auto window = user.addWindow();
    user.focus(window);
    user.press(KEY_F5);
    user.press(KEY_ESC);
    user.release(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("+F5", "+Esc", "-F5"));
    user.release(KEY_ESC);
    EXPECT_THAT(takeLog(), ElementsAre("-Esc"));
    user.takeKeys();
    user.tap(KEY_A);
    EXPECT_EQ(user.takeKeys(), "+38/0 -38/0") << "the keyboard is the others' again";
}

TEST_F(HotKeysTest, ReleaseThatNobodyCouldSeeIsReported)
{
    const auto hold = hotKeys.add(f5, 0, logAs("F5"));
    const auto escape = hotKeys.add(KeyCode::escape, 0, logAs("Esc"));
    user.press(KEY_F5);
    user.press(KEY_ESC);
    user.release(KEY_F5);
    user.release(KEY_ESC); // before the program has looked at any of it
    EXPECT_THAT(takeLog(), ElementsAre("+F5", "+Esc", "-Esc", "-F5"));
}

TEST_F(HotKeysTest, HandlerMayEndRegistrations)
{
    std::unique_ptr<HotKeyRegistration> own;
    std::unique_ptr<HotKeyRegistration> other = hotKeys.add(f6, 0, logAs("F6"));
    own = hotKeys.add(f5, 0, [&](bool) {
        own.reset();
        other.reset();
        log.emplace_back("ended");
    });
    user.press(KEY_F5);
    user.tap(KEY_F6);
    user.release(KEY_F5);
    user.tap(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("ended"));
}

TEST_F(HotKeysTest, LayoutGroupDoesNotMatter)
{
    setLayout(u"us,ru"_s);
    const auto hotKey = hotKeys.add(KeyCode::v, HotKeyModifier::control, logAs("Ctrl+V"));
    user.lockGroup(1);
    user.press(KEY_LEFTCTRL);
    user.tap(KEY_V);
    user.release(KEY_LEFTCTRL);
    EXPECT_THAT(takeLog(), ElementsAre("+Ctrl+V", "-Ctrl+V"));
}

TEST_F(HotKeysTest, NumLockIsIgnoredAfterItMovedToAnotherModifier)
{
    const auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    settle();
    std::array<xcb_keycode_t, 8> keys{KEY_LEFTSHIFT + 8,
                                      KEY_CAPSLOCK + 8,
                                      KEY_LEFTCTRL + 8,
                                      KEY_LEFTALT + 8,
                                      0,
                                      KEY_NUMLOCK + 8,
                                      KEY_LEFTMETA + 8,
                                      0};
    const XcbPtr<xcb_set_modifier_mapping_reply_t> moved(
        xcb_set_modifier_mapping_reply(user.xcb(), xcb_set_modifier_mapping(user.xcb(), 1, keys.data()), nullptr));
    ASSERT_EQ(moved->status, XCB_MAPPING_STATUS_SUCCESS);
    settle(); // the change
    settle(); // what follows from it
    user.tap(KEY_NUMLOCK);
    user.tap(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("+F5", "-F5"));
}

TEST_F(HotKeysTest, EndOfTheServerIsReportedOnce)
{
    const auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    int closings = 0;
    QObject::connect(connection.get(), &X11Connection::closed, [&] { ++closings; });
    display.stop();
    ASSERT_TRUE(await([&] { return closings > 0; }));
    EXPECT_FALSE(hotKeys.add(f6, 0, logAs("")));
    QCoreApplication::processEvents();
    EXPECT_EQ(closings, 1);
}

} // namespace
