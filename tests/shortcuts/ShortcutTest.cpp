// SPDX-License-Identifier: MIT
#include "shortcuts/Shortcut.h"

#include "platform/KeyCodes.h"
#include "platform/KeyMonitors.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ShortcutTest, LabelsNameModifiersInOrder)
{
    EXPECT_EQ(Shortcut::combo(49, 0x1800, u"Space"_s).label(), u"⌃⌥ Space"_s);
    EXPECT_EQ(Shortcut::combo(40, 0x300, u"K"_s).label(), u"⇧⌘ K"_s);
    EXPECT_EQ(Shortcut::combo(40, 0x1B00, u"K"_s).label(), u"⌃⌥⇧⌘ K"_s);
    EXPECT_EQ(Shortcut::combo(96, 0x400, u"F5"_s).label(), u"F5"_s);
    EXPECT_EQ(Shortcut::modifier(ModifierKey::RightOption).label(), u"Right ⌥ Option"_s);
    EXPECT_EQ(Shortcut::modifier(ModifierKey::Fn).label(), u"Fn (🌐)"_s);
}

TEST(ShortcutTest, KeyPressesBecomeShortcutsOrAreRefused)
{
    using Rejection = Shortcut::Rejection;
    struct Row {
        uint16_t keyCode;
        uint32_t flags;
        std::optional<QString> characters;
        std::variant<Shortcut, Rejection> expected;
    };
    const uint32_t everything =
        EventFlag::control | EventFlag::option | EventFlag::command | EventFlag::shift | EventFlag::capsLock;
    const Row table[] = {
        {49, EventFlag::option, u" "_s, Shortcut::combo(49, 0x800, u"Space"_s)},
        {40, everything, u"k"_s, Shortcut::combo(40, 0x1B00, u"K"_s)},
        {27, EventFlag::control, u"ß"_s, Shortcut::combo(27, 0x1000, u"SS"_s)},
        {96, 0, std::nullopt, Shortcut::combo(96, 0, u"F5"_s)},
        {96, EventFlag::shift, std::nullopt, Shortcut::combo(96, 0x200, u"F5"_s)},
        {90, 0, std::nullopt, Shortcut::combo(90, 0, u"F20"_s)},
        {116, EventFlag::command, std::nullopt, Shortcut::combo(116, 0x100, u"Page Up"_s)},
        {0, 0, u"a"_s, Rejection::NeedsModifier},
        {0, EventFlag::shift, u"a"_s, Rejection::NeedsModifier},
        {0, EventFlag::capsLock | EventFlag::function, u"a"_s, Rejection::NeedsModifier},
        {10, EventFlag::command, u""_s, Rejection::NeedsModifier},
        {10, EventFlag::command, std::nullopt, Rejection::NeedsModifier},
        {53, 0, std::nullopt, Rejection::EscapeReserved},
        {53, EventFlag::command, std::nullopt, Rejection::EscapeReserved},
    };
    for (const Row &row : table) {
        EXPECT_EQ(Shortcut::recorded({KeyEvent::Type::KeyDown, row.keyCode, row.flags, row.characters}), row.expected)
            << row.keyCode << " with " << row.flags;
    }
    EXPECT_EQ(message(Rejection::EscapeReserved), u"Esc is used to cancel a dictation."_s);
    EXPECT_EQ(message(Rejection::NeedsModifier), u"Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn't block typing."_s);
}

TEST(ShortcutTest, KeysHaveTheirNamesAndPlaces)
{
    const struct {
        uint16_t keyCode;
        QString name;
        int evdev; // of linux/input-event-codes.h
    } keys[] = {
        {122, u"F1"_s, 59},         {120, u"F2"_s, 60},    {99, u"F3"_s, 61},    {118, u"F4"_s, 62},
        {96, u"F5"_s, 63},          {97, u"F6"_s, 64},     {98, u"F7"_s, 65},    {100, u"F8"_s, 66},
        {101, u"F9"_s, 67},         {109, u"F10"_s, 68},   {103, u"F11"_s, 87},  {111, u"F12"_s, 88},
        {105, u"F13"_s, 183},       {107, u"F14"_s, 184},  {113, u"F15"_s, 185}, {106, u"F16"_s, 186},
        {64, u"F17"_s, 187},        {79, u"F18"_s, 188},   {80, u"F19"_s, 189},  {90, u"F20"_s, 190},
        {49, u"Space"_s, 57},       {36, u"Return"_s, 28}, {48, u"Tab"_s, 15},   {51, u"Delete"_s, 14},
        {117, u"⌦"_s, 111},         {123, u"←"_s, 105},    {124, u"→"_s, 106},   {126, u"↑"_s, 103},
        {125, u"↓"_s, 108},         {115, u"Home"_s, 102}, {119, u"End"_s, 107}, {116, u"Page Up"_s, 104},
        {121, u"Page Down"_s, 109}, {76, u"Enter"_s, 96},
    };
    for (const auto &[keyCode, name, evdev] : keys) {
        const auto recorded = Shortcut::recorded({KeyEvent::Type::KeyDown, keyCode, EventFlag::control, u"x"_s});
        EXPECT_EQ(recorded, (std::variant<Shortcut, Shortcut::Rejection>(Shortcut::combo(keyCode, 0x1000, name))));
        EXPECT_EQ(KeyCode::toEvdev(keyCode), evdev) << name.toStdString();
        EXPECT_EQ(KeyCode::fromEvdev(uint16_t(evdev)), keyCode) << name.toStdString();
    }
    // The keys that type, in rows of a keyboard, by their virtual codes and the first key's evdev code.
    const std::pair<int, std::vector<uint16_t>> rows[] = {
        {2, {18, 19, 20, 21, 23, 22, 26, 28, 25, 29, 27, 24}},      // 1 to =
        {16, {12, 13, 14, 15, 17, 16, 32, 34, 31, 35, 33, 30}},     // Q to ]
        {30, {0, 1, 2, 3, 5, 4, 38, 40, 37, 41, 39, 50}},           // A to `
        {44, {6, 7, 8, 9, 11, 45, 46, 43, 47, 44}},                 // Z to /
        {71, {89, 91, 92, 78, 86, 87, 88, 69, 83, 84, 85, 82, 65}}, // the keypad
    };
    for (const auto &[start, row] : rows) {
        for (size_t place = 0; place < row.size(); ++place) {
            EXPECT_EQ(KeyCode::toEvdev(row[place]), start + int(place));
        }
    }
}

TEST(ShortcutTest, ChoicesHaveTheirStoredNamesAndLabelsInOrder)
{
    QStringList choices;
    for (const ModifierKeyInfo &key : modifierKeys()) {
        choices.append(u"%1: %2"_s.arg(key.rawValue, key.label()));
    }
    for (const TriggerModeInfo &mode : triggerModes()) {
        choices.append(u"%1: %2"_s.arg(mode.rawValue, mode.label()));
    }
    EXPECT_EQ(choices, (QStringList{u"rightOption: Right ⌥ Option"_s, u"rightCommand: Right ⌘ Command"_s,
                                    u"rightControl: Right ⌃ Control"_s, u"fn: Fn (🌐)"_s,
                                    u"both: Hold to talk, or tap for hands-free"_s, u"hold: Hold to talk only"_s,
                                    u"toggle: Tap to start and stop"_s}));
}

TEST(ShortcutTest, MenuEquivalentsExistForKeysAMenuCanShow)
{
    struct Row {
        QString key;
        std::optional<QString> expected;
    };
    for (const Row &row : {Row{u"K"_s, u"k"_s}, Row{u"Space"_s, u" "_s}, Row{u"Return"_s, u"\r"_s}, Row{u"←"_s, u"←"_s},
                           Row{u"👍🏽"_s, u"👍🏽"_s}, Row{u"F5"_s, std::nullopt},
                           Row{u"Page Up"_s, std::nullopt}, Row{u""_s, std::nullopt}}) {
        const auto shortcut = Shortcut::combo(40, 0x1801, row.key).menuShortcut();
        EXPECT_EQ(shortcut.has_value(), row.expected.has_value()) << row.key.toStdString();
        if (shortcut && row.expected) {
            EXPECT_EQ(*shortcut, (Shortcut::MenuShortcut{*row.expected, 0x1800}));
        }
    }
    EXPECT_FALSE(Shortcut::modifier(ModifierKey::Fn).menuShortcut());
}

TEST(ShortcutTest, StoredFormIsReadBackAndHasTheAgreedKeys)
{
    EXPECT_EQ(Shortcut::fromJson(R"({"combo":{"keyCode":49,"modifiers":6144,"key":"Space","extra":1},"other":2})"),
              Shortcut::combo(49, 0x1800, u"Space"_s));
    EXPECT_EQ(Shortcut::fromJson(R"({"modifier":{"_0":"rightOption"}})"), Shortcut::modifier(ModifierKey::RightOption));
    EXPECT_EQ(Shortcut::modifier(ModifierKey::RightCommand).toJson(), R"({"modifier":{"_0":"rightCommand"}})");
    for (const Shortcut &shortcut :
         {Shortcut::combo(123, 0, u"←"_s), Shortcut::combo(0xFFFFFFFF, 0xFFFFFFFF, u""_s),
          Shortcut::modifier(ModifierKey::Fn), Shortcut::modifier(ModifierKey::RightControl)}) {
        EXPECT_EQ(Shortcut::fromJson(shortcut.toJson()), shortcut);
    }
}

TEST(ShortcutTest, AnythingElseIsNoShortcut)
{
    for (const char *json :
         {"", "null", "[]", "{}", R"({"combo":{"keyCode":49,"modifiers":0,"key":"A"},"modifier":{"_0":"fn"}})",
          R"({"modifier":{"_0":"leftOption"}})", R"({"modifier":{}})", R"({"modifier":"fn"})",
          R"({"combo":{"keyCode":49,"modifiers":0}})", R"({"combo":{"keyCode":"49","modifiers":0,"key":"A"}})",
          R"({"combo":{"keyCode":-1,"modifiers":0,"key":"A"}})",
          R"({"combo":{"keyCode":4294967296,"modifiers":0,"key":"A"}})",
          R"({"combo":{"keyCode":1.5,"modifiers":0,"key":"A"}})",
          R"({"combo":{"keyCode":true,"modifiers":0,"key":"A"}})"}) {
        EXPECT_FALSE(Shortcut::fromJson(json)) << json;
    }
}
