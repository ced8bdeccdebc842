// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutRecorder.h"

#include "FakeKeyMonitors.h"
#include "platform/KeyCodes.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uint32_t controlOption = EventFlag::control | EventFlag::option;

class ShortcutRecorderTest : public ::testing::Test {
protected:
    void press(uint16_t keyCode, uint32_t flags, const QString &characters, bool canBeHotKey = true) const
    {
        for (const auto *handler : std::list(monitors.local)) {
            (*handler)({KeyEvent::Type::KeyDown, keyCode, flags, characters, canBeHotKey});
        }
    }

    FakeKeyMonitors monitors;
    /// What the recorder did to the program, in order.
    QStringList log;
    ShortcutRecorder recorder{monitors,
                              {[this] { log.append(u"off"_s); }, [this] { log.append(u"on"_s); },
                               [this](const Shortcut &shortcut) { log.append(shortcut.label()); }}};
};

} // namespace

TEST_F(ShortcutRecorderTest, RecordsTheFirstPressThatCanBeAShortcutWithTheShortcutsOnAgain)
{
    recorder.start();
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(log, QStringList({u"off"_s}));

    press(40, 0, u"k"_s);
    EXPECT_EQ(recorder.rejection(), message(Shortcut::Rejection::NeedsModifier));
    press(KeyCode::escape, EventFlag::command, {});
    EXPECT_EQ(recorder.rejection(), message(Shortcut::Rejection::EscapeReserved));
    const auto notHere = u"That can't be a shortcut on this keyboard. Try another one."_s;
    press(KeyCode::unknown, 0, {}, false); // Print Screen
    EXPECT_EQ(recorder.rejection(), notHere);
    press(114, EventFlag::shift, {}); // Insert, which has no name
    EXPECT_EQ(recorder.rejection(), message(Shortcut::Rejection::NeedsModifier));
    press(114, EventFlag::control, {});
    EXPECT_EQ(recorder.rejection(), notHere);
    press(40, EventFlag::control, u"k"_s, false); // with Alt Gr
    EXPECT_EQ(recorder.rejection(), notHere);
    press(KeyCode::escape, 0x20000, {}, false);
    EXPECT_EQ(recorder.rejection(), message(Shortcut::Rejection::EscapeReserved));
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(log, QStringList({u"off"_s}));

    press(40, controlOption, u"k"_s);
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(log, QStringList({u"off"_s, u"on"_s, u"⌃⌥ K"_s}));
    EXPECT_TRUE(monitors.local.empty());

    recorder.start();
    EXPECT_EQ(recorder.rejection(), std::nullopt);
    press(96, 0, {});
    EXPECT_EQ(log.last(), u"F5"_s);
}

TEST_F(ShortcutRecorderTest, EndsWithoutAChangeOnEscapeOrStop)
{
    recorder.start();
    press(KeyCode::escape, 0, {});
    EXPECT_FALSE(recorder.isRecording());
    recorder.start();
    recorder.stop();
    recorder.stop();
    EXPECT_EQ(log, QStringList({u"off"_s, u"on"_s, u"off"_s, u"on"_s}));
    EXPECT_TRUE(monitors.local.empty());
}

TEST_F(ShortcutRecorderTest, IgnoresModifierKeysAlone)
{
    recorder.start();
    (*monitors.local.front())({KeyEvent::Type::FlagsChanged, KeyCode::rightOption, EventFlag::option});
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(recorder.rejection(), std::nullopt);
}
