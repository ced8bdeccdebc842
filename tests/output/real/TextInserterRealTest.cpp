// SPDX-License-Identifier: MIT
#include "InserterFixture.h"

#include "support/Printing.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TextInserterRealTest : public InserterFixture {
protected:
    const QString text = u"Grüße, ça va? 日本 – „ok“"_s;
};

} // namespace

TEST_F(TextInserterRealTest, TextArrivesInATerminal)
{
    start(u"xterm"_s,
          {u"-u8"_s, u"-xrm"_s, u"XTerm*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)"_s,
           u"-e"_s, u"sh"_s, u"-c"_s, u"read -r line; printf %s \"$line\" > \"$0.part\"; mv \"$0.part\" \"$0\""_s,
           path});
    begin(text);
    end();
    user.tap(KEY_ENTER);
    EXPECT_EQ(awaitText(), text);
}

TEST_F(TextInserterRealTest, TextArrivesInAnEditorAndTheClipboardIsWhatItWas)
{
    const auto picture = QByteArrayLiteral("\x89PNG\r\n\x1a\n\0\xff").repeated(100'000);
    copying->write({PasteboardItem{{Pasteboard::plainString.toString(), {"copied Grüße"}},
                                   {u"text/html"_s, {"<b>copied</b>\0", u"text/html"_s}},
                                   {u"image/png"_s, {picture, u"image/png"_s}}}});
    const auto before = resultOf(reading->items());
    ASSERT_EQ(before.size(), 1);
    ASSERT_EQ(before[0].value(u"image/png"_s).bytes, picture);
    startEditor();
    begin(text);
    end();
    EXPECT_EQ(resultOf(reading->items()), before);
    EXPECT_EQ(editorText(), text);
}

TEST_F(TextInserterRealTest, PasteKeystrokeWaitsForTheReleaseOfAModifier)
{
    startEditor();
    watchKeys();
    user.press(KEY_LEFTALT);
    const auto release = clock.after(300ms, [this] { user.release(KEY_LEFTALT); });
    begin(text);
    const auto released = awaitKey(XCB_INPUT_RAW_KEY_RELEASE, KEY_LEFTALT);
    const auto pasted = awaitKey(XCB_INPUT_RAW_KEY_PRESS, KEY_V);
    ASSERT_TRUE(released && pasted) << "in this order";
    EXPECT_LE(*released, *pasted);
    end();
    EXPECT_EQ(editorText(), text);
}

TEST_F(TextInserterRealTest, ModifierHeldOnDoesNotKeepTheTextBack)
{
    startEditor();
    watchKeys();
    user.press(KEY_LEFTALT);
    std::optional<int> keysBefore;
    const auto early = clock.after(900ms, [&] { keysBefore = user.takeEvents(XCB_GE_GENERIC); });
    begin(text);
    ASSERT_TRUE(await([&] { return keysBefore.has_value(); }));
    EXPECT_EQ(keysBefore, 1) << "the modifier alone";
    const auto pasted = awaitKey(XCB_INPUT_RAW_KEY_PRESS, KEY_V);
    EXPECT_TRUE(pasted) << "while the modifier is held";
    end();
    user.release(KEY_LEFTALT);
    EXPECT_EQ(editorText(), text) << "Ctrl+V, not Ctrl+Alt+V";
}

TEST_F(TextInserterRealTest, SilentClipboardOwnerDoesNotKeepTheTextBack)
{
    ASSERT_TRUE(user.ownsSelection(user.addWindow()));
    startEditor();
    begin(text);
    end();
    EXPECT_EQ(editorText(), text);
}

TEST_F(TextInserterRealTest, CopyMadeDuringThePauseStays)
{
    copying->setString(u"earlier"_s);
    startEditor();
    const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(user.xcb(), window, XCB_CW_EVENT_MASK, &mask);
    user.sync();
    begin(text);
    // The title tells that there is something to save.
    const auto title = user.atom("_NET_WM_NAME");
    ASSERT_TRUE(user.next([title](const xcb_generic_event_t &event) {
        return eventType(event) == XCB_PROPERTY_NOTIFY && eventAs<xcb_property_notify_event_t>(event).atom == title;
    }));
    ASSERT_FALSE(outcome) << "still in the pause";
    copying->setString(u"copied meanwhile"_s);
    end();
    const auto items = resultOf(reading->items());
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].value(u"UTF8_STRING"_s).bytes, "copied meanwhile");
    EXPECT_EQ(editorText(), text);
}
