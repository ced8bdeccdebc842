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
