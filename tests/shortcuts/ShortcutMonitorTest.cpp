// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutMonitor.h"

#include "FakeHotKeys.h"
#include "FakeKeyMonitors.h"

#include "platform/KeyCodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

KeyEvent flags(uint16_t keyCode, uint32_t modifierFlags)
{
    return {KeyEvent::Type::FlagsChanged, keyCode, modifierFlags, std::nullopt};
}

const KeyEvent rightOptionDown = flags(61, EventFlag::option | EventFlag::rightOption);
const KeyEvent rightOptionUp = flags(61, 0);
const KeyEvent leftOptionDown = flags(58, EventFlag::option | EventFlag::leftOption);
const KeyEvent rightWithLeftOption = flags(61, EventFlag::option | EventFlag::rightOption | EventFlag::leftOption);
const KeyEvent rightUpLeftStays = flags(61, EventFlag::option | EventFlag::leftOption);
const KeyEvent leftShiftDown = flags(56, EventFlag::option | EventFlag::rightOption | EventFlag::shift);
const KeyEvent aDown = {KeyEvent::Type::KeyDown, 0, EventFlag::option | EventFlag::rightOption, std::nullopt};

const KeyEvent unknownDown = {KeyEvent::Type::KeyDown, KeyCode::unknown, 0, std::nullopt, false};

class ShortcutMonitorTest : public ::testing::Test {
protected:
    /// What was reported so far: "p" pressed, "r" released, "i" interrupted.
    std::string take() { return std::exchange(reported, {}); }

    FakeHotKeys hotKeys;
    FakeKeyMonitors keyMonitors;
    std::string reported;
    ShortcutMonitor monitor{hotKeys, keyMonitors,
                            [this](ShortcutEvent event) { reported += "pri"[static_cast<int>(event)]; }};
};

} // namespace

TEST_F(ShortcutMonitorTest, SequencesOfASingleModifierKey)
{
    struct Row {
        const char *what;
        std::vector<KeyEvent> events;
        std::string expected;
    };
    const Row table[] = {
        {"tap", {rightOptionDown, rightOptionUp}, "pr"},
        {"no change of its own bit", {rightOptionDown, rightOptionDown, rightOptionUp, rightOptionUp}, "pr"},
        {"held, then a letter", {rightOptionDown, aDown, aDown, rightOptionUp}, "pi"},
        {"held, then a key without a code", {rightOptionDown, unknownDown, rightOptionUp}, "pi"},
        {"held, then another modifier", {rightOptionDown, leftShiftDown, rightOptionUp}, "pi"},
        {"held, then its twin", {rightOptionDown, rightWithLeftOption, leftOptionDown, rightUpLeftStays}, "pi"},
        {"twin alone", {leftOptionDown, flags(58, 0)}, ""},
        {"pressed while the twin is held", {leftOptionDown, rightWithLeftOption, rightUpLeftStays}, "pr"},
        {"letter first", {aDown, rightOptionDown, rightOptionUp}, "pr"},
        {"interrupted, then used again",
         {rightOptionDown, aDown, rightOptionUp, rightOptionDown, rightOptionUp},
         "pipr"},
    };
    for (const Row &row : table) {
        EXPECT_TRUE(monitor.activate(Shortcut::modifier(ModifierKey::RightOption)));
        for (const KeyEvent &event : row.events) {
            keyMonitors.send(event);
        }
        EXPECT_EQ(take(), row.expected) << row.what;
    }
}

TEST_F(ShortcutMonitorTest, EachSingleKeyIsTheOneOnItsSide)
{
    const struct {
        ModifierKey key;
        KeyEvent down;
        KeyEvent twin;
    } cases[] = {{ModifierKey::RightOption, flags(61, 0x80040), flags(58, 0x80020)},
                 {ModifierKey::RightCommand, flags(54, 0x100010), flags(55, 0x100008)},
                 {ModifierKey::RightControl, flags(62, 0x42000), flags(59, 0x40001)},
                 {ModifierKey::Fn, flags(63, 0x800000), flags(57, 0x10000)}};
    for (const auto &[key, down, twin] : cases) {
        monitor.activate(Shortcut::modifier(key));
        keyMonitors.send(twin);
        keyMonitors.send(flags(twin.keyCode, 0));
        EXPECT_EQ(take(), "") << int(key);
        keyMonitors.send(down);
        keyMonitors.send(flags(down.keyCode, 0));
        EXPECT_EQ(take(), "pr") << int(key);
    }
}

TEST_F(ShortcutMonitorTest, ASingleKeyIsWatchedOnceInOurProgramAndOnceInOthers)
{
    monitor.activate(Shortcut::modifier(ModifierKey::RightControl));
    monitor.activate(Shortcut::modifier(ModifierKey::RightControl));
    EXPECT_EQ(keyMonitors.global.size(), 1U);
    EXPECT_EQ(keyMonitors.local.size(), 1U);
    monitor.deactivate();
    EXPECT_TRUE(keyMonitors.global.empty());
    EXPECT_TRUE(keyMonitors.local.empty());
}

TEST_F(ShortcutMonitorTest, ReactivatingForgetsAHeldKey)
{
    monitor.activate(Shortcut::modifier(ModifierKey::RightOption));
    keyMonitors.send(rightOptionDown);
    monitor.activate(Shortcut::modifier(ModifierKey::RightOption));
    keyMonitors.send(rightOptionUp);
    keyMonitors.send(aDown);
    EXPECT_EQ(take(), "p");
}

TEST_F(ShortcutMonitorTest, ACombinationIsAHotKeyAndReplacesWhatWasArmed)
{
    const Shortcut space = Shortcut::combo(49, 0x1800, u"Space"_s);
    EXPECT_TRUE(monitor.activate(space));
    hotKeys.press(49, 0x1800);
    hotKeys.release(49, 0x1800);
    EXPECT_EQ(take(), "pr");

    EXPECT_TRUE(monitor.activate(Shortcut::modifier(ModifierKey::RightOption)));
    EXPECT_FALSE(hotKeys.isRegistered(49, 0x1800));

    hotKeys.takenByOthers.insert({49, 0x1800});
    EXPECT_FALSE(monitor.activate(space));
    keyMonitors.send(rightOptionDown);
    EXPECT_EQ(take(), "");
}
