// SPDX-License-Identifier: MIT
#include "X11Fixture.h"
#include "platform/KeyCodes.h"
#include "platform/x11/keys/X11KeyEvents.h"
#include "platform/x11/windows/TerminalClasses.h"

using namespace Qt::StringLiterals;

namespace {

class KeyEventsTest : public X11Fixture {
protected:
    std::string paste()
    {
        keyEvents.post(KeyCode::v, true, EventFlag::command);
        keyEvents.post(KeyCode::v, false, EventFlag::command);
        return takeKeys();
    }

    /// What the focused window got by now of all that was posted.
    std::string takeKeys()
    {
        connection->takeArrived([](const auto &) { return false; });
        return user.takeKeys();
    }

    X11HotKeys hotKeys{*connection, *keymap};
    X11KeyEvents keyEvents{*connection, *keymap, hotKeys, TerminalClasses::defaults()};
    xcb_window_t window = user.addWindow();
};

const std::string controlV = "+37/0 +55/4 -55/4 -37/4";
const std::string controlShiftV = "+37/0 +50/4 +55/5 -55/5 -50/5 -37/4";

TEST_F(KeyEventsTest, PasteGoesThroughTheKeyThatTypesV)
{
    const struct {
        QString layouts;
        QString variants;
        QString options;
        uint8_t group;
        int key;
        int control = KEY_LEFTCTRL;
    } cases[] = {
        {u"us"_s, {}, {}, 0, KEY_V},
        {u"us"_s, u"dvorak"_s, {}, 0, KEY_DOT},
        {u"us,us"_s, u",dvorak"_s, {}, 1, KEY_DOT},
        {u"us,ru"_s, {}, {}, 1, KEY_V},
        {u"ru"_s, {}, {}, 0, KEY_V},
        {u"us,ru"_s, u"dvorak,"_s, {}, 1, KEY_DOT},
        {u"us"_s, {}, u"ctrl:swapcaps"_s, 0, KEY_V, KEY_CAPSLOCK},
        {u"us"_s, {}, u"altwin:ctrl_win"_s, 0, KEY_V},
    };
    user.focus(window);
    for (const auto &[layouts, variants, options, group, key, control] : cases) {
        setLayout(layouts, variants, options);
        user.lockGroup(group);
        const auto expected = u"+%2/0 +%1/4 -%1/4 -%2/4"_s.arg(key + 8).arg(control + 8).toStdString();
        EXPECT_EQ(paste(), expected) << qPrintable(layouts + variants + options);
    }
}

TEST_F(KeyEventsTest, TerminalsGetShiftToo)
{
    const struct {
        QByteArray windowClass;
        std::string keys;
    } cases[] = {
        {QByteArrayLiteral("xterm\0XTerm\0"), controlShiftV},
        {QByteArrayLiteral("gnome-terminal-server\0Gnome-terminal\0"), controlShiftV},
        {QByteArrayLiteral("scratch\0Alacritty\0"), controlShiftV},
        {QByteArrayLiteral("gedit\0Gedit\0"), controlV},
        {QByteArrayLiteral("xterminal-notes\0Notes\0"), controlV},
    };
    for (const auto &[windowClass, keys] : cases) {
        const auto topLevel = user.addWindow(windowClass);
        user.focus(topLevel);
        EXPECT_EQ(paste(), keys) << windowClass.constData();
        user.focus(user.addWindow({}, topLevel)); // a window inside
        EXPECT_EQ(paste(), keys) << windowClass.constData();
    }
}

TEST_F(KeyEventsTest, ActiveWindowDecidesWhereTheFocusedOneHasNoClass)
{
    const auto terminal = user.addWindow(QByteArrayLiteral("xterm\0XTerm\0"));
    xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, user.root(), user.atom("_NET_ACTIVE_WINDOW"),
                        XCB_ATOM_WINDOW, 32, 1, &terminal);
    user.focus(window);
    EXPECT_EQ(paste(), controlShiftV);
}

TEST_F(KeyEventsTest, TerminalClassesAreTheGivenOnes)
{
    X11KeyEvents others(*connection, *keymap, hotKeys, {u"gedit"_s});
    user.focus(user.addWindow(QByteArrayLiteral("gedit\0Gedit\0")));
    others.post(KeyCode::v, true, EventFlag::command);
    others.post(KeyCode::v, false, EventFlag::command);
    EXPECT_EQ(takeKeys(), controlShiftV);
}

TEST_F(KeyEventsTest, UpReleasesWhatDownPressedThoughTheFocusMoved)
{
    user.focus(user.addWindow(QByteArrayLiteral("xterm\0XTerm\0")));
    EXPECT_TRUE(keyEvents.post(KeyCode::v, true, EventFlag::command));
    connection->takeArrived([](const auto &) { return false; });
    user.focus(window);
    EXPECT_TRUE(keyEvents.post(KeyCode::v, false, EventFlag::command));
    EXPECT_EQ(takeKeys(), controlShiftV);
    EXPECT_EQ(keyEvents.modifierFlags(), 0U);
    EXPECT_FALSE(keyEvents.post(KeyCode::v, false, EventFlag::command)) << "there is nothing to release";
}

TEST_F(KeyEventsTest, ModifiersStillHeldAreReleasedFirst)
{
    user.focus(window);
    user.press(KEY_RIGHTSHIFT);
    user.press(KEY_LEFTALT);
    user.tap(KEY_CAPSLOCK);
    user.takeKeys();
    // Caps Lock (2) is no held modifier and stays.
    EXPECT_EQ(paste(), "-62/11 -64/10 +37/2 +55/6 -55/6 -37/6");
}

TEST_F(KeyEventsTest, ModifiersHeldOnAKeyboardDoNotReachThePaste)
{
    user.focus(window);
    user.pressOnKeyboard(KEY_LEFTSHIFT);
    ASSERT_EQ(keyEvents.modifierFlags(), EventFlag::shift);
    user.takeKeys();
    EXPECT_THAT(paste(), testing::HasSubstr("+55/4"));
    user.releaseOnKeyboard(KEY_LEFTSHIFT);
    EXPECT_EQ(keyEvents.modifierFlags(), 0U);
}

TEST_F(KeyEventsTest, WhatKeepsAKeyFromTheProgramInFrontIsKnown)
{
    using Obstacle = KeyEvents::Obstacle;
    const auto now = [this] { return keyEvents.obstacle(KeyCode::v); };
    const auto setOnRoot = [this](const QByteArray &name, xcb_window_t value) {
        xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, user.root(), user.atom(name), XCB_ATOM_WINDOW, 32, 1,
                            &value);
        user.sync();
    };
    user.focus(window);
    EXPECT_EQ(now(), Obstacle::None);

    const auto hotKey = hotKeys.add(KeyCode::space, 0, [](bool) {});
    user.press(KEY_SPACE); // not looked at by the event loop yet
    EXPECT_EQ(now(), Obstacle::OwnHotKey);
    settle();
    EXPECT_EQ(now(), Obstacle::OwnHotKey);
    user.release(KEY_SPACE);
    EXPECT_EQ(now(), Obstacle::None);
    settle();

    user.press(KEY_V);
    EXPECT_EQ(now(), Obstacle::HeldKey);
    user.release(KEY_V);

    xcb_grab_keyboard_unchecked(user.xcb(), 0, window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    user.sync();
    EXPECT_EQ(now(), Obstacle::OtherGrab);
    xcb_ungrab_keyboard(user.xcb(), XCB_CURRENT_TIME);
    user.sync();

    user.focus(XCB_INPUT_FOCUS_NONE);
    EXPECT_EQ(now(), Obstacle::NoFocus);
    user.focus(XCB_INPUT_FOCUS_POINTER_ROOT);
    user.moveTo(1000, 700);
    EXPECT_EQ(now(), Obstacle::NoFocus) << "no window there";
    user.moveTo(10, 10);
    EXPECT_EQ(now(), Obstacle::None);

    setOnRoot("_NET_SUPPORTING_WM_CHECK", window);
    setOnRoot("_NET_ACTIVE_WINDOW", noWindow);
    user.focus(window); // the window manager's own: it has no class
    EXPECT_EQ(now(), Obstacle::NoFocus);
    const auto program = user.addWindow(QByteArrayLiteral("notes\0Notes\0"));
    user.focus(program);
    EXPECT_EQ(now(), Obstacle::None);
    const auto type = user.atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, program, user.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32,
                        1, &type);
    user.sync();
    EXPECT_EQ(now(), Obstacle::NoFocus);
}

TEST_F(KeyEventsTest, OtherKeysArePostedWithTheirModifiers)
{
    user.focus(window);
    const auto all = EventFlag::shift | EventFlag::control | EventFlag::option | EventFlag::command;
    EXPECT_TRUE(keyEvents.post(0, true, all | EventFlag::capsLock));
    EXPECT_EQ(takeKeys(), "+37/0 +64/4 +50/12 +133/13 +38/77");
    EXPECT_TRUE(keyEvents.post(0, false, 0));
    EXPECT_EQ(takeKeys(), "-38/77 -133/77 -50/13 -64/12 -37/4");
    EXPECT_FALSE(keyEvents.post(KeyCode::fn, true, 0));
}

TEST_F(KeyEventsTest, HeldModifiersAreToldAndLocksAreNot)
{
    const struct {
        int key;
        uint32_t flag;
    } cases[] = {{KEY_RIGHTSHIFT, EventFlag::shift},
                 {KEY_LEFTCTRL, EventFlag::control},
                 {KEY_LEFTALT, EventFlag::option},
                 {KEY_RIGHTALT, EventFlag::option}, // Alt Gr
                 {KEY_RIGHTMETA, EventFlag::command}};
    setLayout(u"de"_s);
    user.tap(KEY_CAPSLOCK);
    user.tap(KEY_NUMLOCK);
    for (const auto &[key, flag] : cases) {
        user.press(key);
        EXPECT_EQ(keyEvents.modifierFlags(), flag) << key;
        user.release(key);
        EXPECT_EQ(keyEvents.modifierFlags(), 0U) << key;
    }
}

} // namespace
