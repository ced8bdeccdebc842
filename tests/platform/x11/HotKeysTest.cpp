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

    void moveNumLock(xcb_map_index_t modifier)
    {
        std::array<xcb_keycode_t, 8> keys{
            KEY_LEFTSHIFT + 8, KEY_CAPSLOCK + 8, KEY_LEFTCTRL + 8, KEY_LEFTALT + 8, 0, 0, KEY_LEFTMETA + 8, 0};
        keys.at(modifier) = KEY_NUMLOCK + 8;
        settle();
        const XcbPtr<xcb_set_modifier_mapping_reply_t> moved(
            xcb_set_modifier_mapping_reply(user.xcb(), xcb_set_modifier_mapping(user.xcb(), 1, keys.data()), nullptr));
        ASSERT_EQ(moved->status, XCB_MAPPING_STATUS_SUCCESS);
        settle(); // the change
        settle(); // what follows from it
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

TEST_F(HotKeysTest, SeveralHeldAtATimeEachHaveTheirPressAndRelease)
{
    const auto hold = hotKeys.add(f5, 0, logAs("F5"));
    const auto escape = hotKeys.add(KeyCode::escape, 0, logAs("Esc"));
    const auto chord = hotKeys.add(f6, HotKeyModifier::command, logAs("Super+F6"));
    const struct {
        std::vector<int> keys; // pressed, or released where negative; 0: the program looks at them
        std::vector<std::string> expected;
    } cases[] = {
        {{KEY_F5, KEY_A, -KEY_A, KEY_ESC, -KEY_ESC, KEY_ESC, -KEY_ESC, -KEY_F5},
         {"+F5", "+Esc", "-Esc", "+Esc", "-Esc", "-F5"}},
        {{KEY_F5, KEY_ESC, -KEY_F5, 0, -KEY_ESC}, {"+F5", "+Esc", "-F5", "-Esc"}},
        {{KEY_F5, KEY_ESC, -KEY_F5, -KEY_ESC}, {"+F5", "+Esc", "-Esc", "-F5"}},
        {{KEY_LEFTMETA, KEY_F6, -KEY_LEFTMETA, -KEY_F6}, {"+Super+F6", "-Super+F6"}},
    };
    user.focus(user.addWindow());
    for (const auto &[keys, expected] : cases) {
        std::vector<std::string> found;
        for (const int key : keys) {
            key > 0 ? user.press(key) : key < 0 ? user.release(-key) : settle();
        }
        EXPECT_EQ(takeLog(), expected);
        user.takeKeys();
        user.tap(KEY_A);
        EXPECT_EQ(user.takeKeys(), "+38/0 -38/0") << "the keyboard is the others' again";
    }
}

TEST_F(HotKeysTest, EscIsTheKeyThatTypesItWithAnyModifiersAndLocks)
{
    const struct {
        QString options;
        std::vector<int> escapes;
        std::vector<int> others;
    } cases[] = {{{}, {KEY_ESC}, {KEY_CAPSLOCK}},
                 {u"caps:escape"_s, {KEY_ESC, KEY_CAPSLOCK}, {}},
                 {u"caps:swapescape"_s, {KEY_CAPSLOCK}, {KEY_ESC}}};
    ASSERT_TRUE(user.grabsKey(KEY_ESC, XCB_MOD_MASK_1)); // as a window manager does
    ASSERT_TRUE(user.grabsKey(KEY_CAPSLOCK, XCB_MOD_MASK_1));
    const auto escape = hotKeys.add(KeyCode::escape, 0, logAs("Esc"));
    ASSERT_TRUE(escape);
    for (const auto &[options, escapes, others] : cases) {
        setLayout(u"us"_s, {}, options);
        settle(); // the change
        settle(); // what follows from it
        for (const auto &modifiers : std::vector<std::vector<int>>{
                 {}, {KEY_LEFTCTRL, KEY_LEFTMETA}, {KEY_RIGHTSHIFT}, {KEY_NUMLOCK}, {KEY_LEFTALT, KEY_LEFTCTRL}}) {
            std::ranges::for_each(modifiers, [this](int key) { user.press(key); });
            std::ranges::for_each(others, [this](int key) { user.tap(key), user.tap(key); });
            EXPECT_THAT(takeLog(), IsEmpty()) << qPrintable(options);
            for (const int key : escapes) {
                user.tap(key);
                EXPECT_THAT(takeLog(), ElementsAre("+Esc", "-Esc")) << qPrintable(options) << modifiers.size();
            }
            std::ranges::for_each(modifiers, [this](int key) { user.release(key); });
        }
        user.tap(KEY_NUMLOCK);
    }
}

TEST_F(HotKeysTest, AHotKeyArmedWhileItsKeyIsDownStartsWithTheNextPress)
{
    user.focus(user.addWindow());
    const EventCounter presses(*connection, XCB_KEY_PRESS);
    user.press(KEY_F5);
    const auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    ASSERT_TRUE(await([&] { return presses.count() >= 2; })) << "the server repeats the key";
    user.release(KEY_F5);
    EXPECT_THAT(takeLog(), IsEmpty());
    user.takeKeys();
    user.tap(KEY_A);
    EXPECT_EQ(user.takeKeys(), "+38/0 -38/0") << "the keyboard is the others' again";
    user.tap(KEY_F5);
    EXPECT_THAT(takeLog(), ElementsAre("+F5", "-F5"));
}

TEST_F(HotKeysTest, AHotKeyThatAChangeOfTheLayoutGivesToAnotherProgramIsLost)
{
    int losses = 0;
    hotKeys.setLostHandler([&] { ++losses; });
    const auto kept = hotKeys.add(f6, 0, logAs("F6"));
    const auto hotKey = hotKeys.add(f5, 0, logAs("F5"));
    ASSERT_TRUE(user.grabsKey(KEY_F5, XCB_MOD_MASK_3));
    moveNumLock(XCB_MAP_INDEX_3);
    EXPECT_EQ(losses, 1);
    EXPECT_FALSE(hotKeys.add(f5, 0, logAs("F5"))) << "the other program's";
    user.tap(KEY_F6);
    EXPECT_THAT(takeLog(), ElementsAre("+F6", "-F6"));
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
    moveNumLock(XCB_MAP_INDEX_3);
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
