// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "TestClient.h"
#include "platform/x11/clipboard/SelectionOwner.h"
#include "platform/x11/clipboard/SelectionReader.h"
#include "platform/x11/clipboard/X11Pasteboard.h"
#include "support/Await.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    uint32_t state = 1;
    for (auto &byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = char(state >> 24);
    }
    return bytes;
}

class PasteboardTest : public testing::Test {
protected:
    /// A reading that goes on while the test does something else.
    struct Reading {
        std::optional<QList<PasteboardItem>> items;
        QCoro::Task<void> task;
    };

    static QCoro::Task<void> readInto(std::optional<QList<PasteboardItem>> &result, Pasteboard &source)
    {
        auto reading = source.items();
        result = co_await reading;
    }

    std::unique_ptr<Reading> startReading()
    {
        auto reading = std::make_unique<Reading>();
        reading->task = readInto(reading->items, *pasteboard);
        return reading;
    }

    /// A client that owns the clipboard and answers as the test says.
    xcb_window_t scriptedOwner()
    {
        const auto window = user.addWindow();
        EXPECT_TRUE(user.ownsSelection(window));
        return window;
    }

    /// Waits for a request and answers it with atoms or bytes of the given type.
    template <typename T> xcb_selection_request_event_t answerNext(const QByteArray &type, const std::vector<T> &units)
    {
        const auto event = user.next(XCB_SELECTION_REQUEST);
        const auto request = eventAs<xcb_selection_request_event_t>(*event);
        xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, user.atom(type),
                            sizeof(T) * 8, uint32_t(units.size()), units.data());
        xcb_selection_notify_event_t notify{};
        notify.response_type = XCB_SELECTION_NOTIFY;
        notify.time = request.time;
        notify.requestor = request.requestor;
        notify.selection = request.selection;
        notify.target = request.target;
        notify.property = request.property;
        xcb_send_event(user.xcb(), 0, request.requestor, 0, reinterpret_cast<const char *>(&notify));
        user.sync();
        return request;
    }

    QByteArray xclip(const QStringList &arguments, const QByteArray &input = {})
    {
        return run(u"xclip"_s, QStringList{u"-selection"_s, u"clipboard"_s} + arguments, display.environment(), input);
    }

    VirtualDisplay display;
    TestClient user{display};
    FakeClock clock;
    std::unique_ptr<X11Pasteboard> pasteboard = X11Pasteboard::create(clock, display.name());
    std::unique_ptr<X11Pasteboard> other = X11Pasteboard::create(clock, display.name());
};

TEST_F(PasteboardTest, TextIsOfferedUnderEveryNameOfText)
{
    pasteboard->setString(u"Grüße"_s);
    for (const auto *const target : {"UTF8_STRING", "TEXT", "text/plain", "text/plain;charset=utf-8"}) {
        EXPECT_EQ(xclip({u"-o"_s, u"-t"_s, QString::fromLatin1(target)}), "Grüße") << target;
    }
    EXPECT_EQ(xclip({u"-o"_s, u"-t"_s, u"STRING"_s}), "Gr\xFC\xDF"
                                                      "e");
    pasteboard->setString(u"日本"_s);
    EXPECT_EQ(xclip({u"-o"_s, u"-t"_s, u"UTF8_STRING"_s}), "日本");
    EXPECT_FALSE(xclip({u"-o"_s, u"-t"_s, u"TARGETS"_s}).split('\n').contains("STRING")) << "not in Latin-1";
}

TEST_F(PasteboardTest, TransientTextHintsClipboardKeepersAway)
{
    const PasteboardItem text{{Pasteboard::plainString.toString(), {"text"}}};
    auto transient = text;
    transient.insert(Pasteboard::transientType.toString(), {});
    pasteboard->write({transient});
    EXPECT_EQ(xclip({u"-o"_s, u"-t"_s, u"x-kde-passwordManagerHint"_s}), "secret");
    pasteboard->write({text});
    EXPECT_FALSE(xclip({u"-o"_s, u"-t"_s, u"TARGETS"_s}).contains("x-kde-passwordManagerHint"));
}

TEST_F(PasteboardTest, WhatWasReadIsWrittenBackByteForByte)
{
    const PasteboardItem content{
        {u"UTF8_STRING"_s, {"a\0b\n", u"UTF8_STRING"_s}},
        {u"image/png"_s, {noise(3'000'000), u"image/png"_s}}, // beyond one property
        {u"application/x-exact"_s,
         {noise(2 * SelectionOwner::maximumPart), u"application/x-other"_s}}, // ends with a full part
        {u"_ODD_ATOMS"_s, {noise(12), u"ATOM"_s, 32}},
        {u"_ODD_SHORTS"_s, {noise(700'002), u"INTEGER"_s, 16}},
        {u"x-special/empty"_s, {{}, u"STRING"_s}},
    };
    other->write({content});
    EXPECT_EQ(resultOf(pasteboard->items()), QList{content});
    pasteboard->write({content});
    EXPECT_EQ(resultOf(other->items()), QList{content});
    EXPECT_EQ(resultOf(pasteboard->items()), QList{content}) << "its own content";
}

TEST_F(PasteboardTest, LargeDataGoesToAndComesFromAnotherProgram)
{
    const auto picture = noise(3'000'000);
    xclip({u"-i"_s, u"-t"_s, u"image/png"_s}, picture);
    ASSERT_TRUE(await([&] { return user.selectionOwner() != noWindow; })); // it goes on in the background
    const auto items = resultOf(pasteboard->items());
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].value(u"image/png"_s).bytes, picture);

    pasteboard->write(items);
    EXPECT_EQ(xclip({u"-o"_s, u"-t"_s, u"image/png"_s}), picture);
}

TEST_F(PasteboardTest, TwoReadingsAtOnceBothGetEverything)
{
    const PasteboardItem content{{u"image/png"_s, {noise(3'000'000), u"image/png"_s}}};
    other->write({content});
    const auto first = startReading();
    const auto second = startReading();
    ASSERT_TRUE(await([&] { return first->items && second->items; }));
    EXPECT_EQ(first->items, QList{content});
    EXPECT_EQ(second->items, QList{content});
}

TEST_F(PasteboardTest, SeveralItemsAreMergedTheFirstWins)
{
    pasteboard->write({{{u"a"_s, {"1", u"a"_s}}}, {{u"a"_s, {"2", u"a"_s}}, {u"b"_s, {"3", u"b"_s}}}});
    EXPECT_EQ(resultOf(other->items()), (QList{PasteboardItem{{u"a"_s, {"1", u"a"_s}}, {u"b"_s, {"3", u"b"_s}}}}));
}

TEST_F(PasteboardTest, SeveralTargetsAreAnsweredAtOnce)
{
    pasteboard->setString(u"text"_s);
    const auto window = user.addWindow();
    const auto property = user.atom("REQUESTS");
    const xcb_atom_t requests[] = {user.atom("UTF8_STRING"), user.atom("FIRST"),     user.atom("image/png"),
                                   user.atom("SECOND"),      user.atom("TIMESTAMP"), user.atom("THIRD")};
    xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, window, property, user.atom("ATOM_PAIR"), 32, 6, requests);
    xcb_convert_selection(user.xcb(), window, user.atom("CLIPBOARD"), user.atom("MULTIPLE"), property,
                          XCB_CURRENT_TIME);
    user.sync();
    const auto event = user.next(XCB_SELECTION_NOTIFY);
    ASSERT_TRUE(event);
    EXPECT_EQ(eventAs<xcb_selection_notify_event_t>(*event).property, property);
    const auto get = [&](const QByteArray &name) {
        const XcbPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            user.xcb(), xcb_get_property(user.xcb(), 0, window, user.atom(name), 0, 0, 100), nullptr));
        return QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                          xcb_get_property_value_length(reply.get()));
    };
    EXPECT_EQ(get("FIRST"), "text");
    EXPECT_EQ(get("THIRD").size(), 4);
    const auto answered = get("REQUESTS");
    EXPECT_EQ(reinterpret_cast<const xcb_atom_t *>(answered.constData())[3], xcb_atom_t(XCB_ATOM_NONE)) << "refused";
}

TEST_F(PasteboardTest, OwnerThatDoesNotAnswerYieldsNothingAfterTheSilenceLimit)
{
    scriptedOwner();
    const auto reading = startReading();
    ASSERT_TRUE(user.next(XCB_SELECTION_REQUEST));
    clock.advance(SelectionReader::silenceLimit - 1ms);
    EXPECT_FALSE(reading->items);
    clock.advance(1ms);
    ASSERT_TRUE(reading->items);
    EXPECT_TRUE(reading->items->isEmpty());
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(PasteboardTest, OwnerThatStopsAnsweringYieldsWhatWasReadUntilThen)
{
    scriptedOwner();
    const auto reading = startReading();
    answerNext<uint32_t>("ATOM",
                         {user.atom("TARGETS"), user.atom("SAVE_TARGETS"), user.atom("DELETE"),
                          user.atom("INSERT_SELECTION"), user.atom("first"), user.atom("parts"), user.atom("third")});
    answerNext<char>("kind", {'o', 'n', 'e'});
    answerNext<uint32_t>("INCR", {1000});
    clock.advance(SelectionReader::silenceLimit);
    ASSERT_TRUE(reading->items);
    EXPECT_EQ(*reading->items, (QList{PasteboardItem{{u"first"_s, {"one", u"kind"_s}}}}));
    QCoreApplication::processEvents();
    EXPECT_EQ(user.takeEvents(XCB_SELECTION_REQUEST), 0) << "it is not asked any more";
}

TEST_F(PasteboardTest, OwnerThatNeverEndsIsGivenUpAfterTheTotalLimit)
{
    scriptedOwner();
    const auto reading = startReading();
    answerNext<uint32_t>("ATOM", {user.atom("endless")});
    const auto request = answerNext<uint32_t>("INCR", {1});
    int parts = 0;
    ASSERT_TRUE(await([&] {
        const XcbPtr<xcb_get_property_reply_t> left(xcb_get_property_reply(
            user.xcb(), xcb_get_property(user.xcb(), 0, request.requestor, request.property, 0, 0, 0), nullptr));
        if (left && left->type == XCB_ATOM_NONE) { // taken: the next part, a little late each time
            clock.advance(SelectionReader::silenceLimit - 50ms);
            xcb_change_property(user.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, XCB_ATOM_STRING,
                                8, 4, "part");
            user.sync();
            ++parts;
        }
        return reading->items.has_value();
    }));
    EXPECT_EQ(parts, SelectionReader::totalLimit / (SelectionReader::silenceLimit - 50ms));
    EXPECT_TRUE(reading->items->isEmpty());
}

TEST_F(PasteboardTest, EveryChangeOfContentCountsOnce)
{
    auto last = pasteboard->changeCount();
    const auto grown = [&] { return pasteboard->changeCount() - std::exchange(last, pasteboard->changeCount()); };
    EXPECT_EQ(grown(), 0);
    pasteboard->setString(u"own"_s);
    EXPECT_EQ(grown(), 1);
    pasteboard->clear();
    pasteboard->setString(u"again"_s);
    EXPECT_EQ(grown(), 1);
    pasteboard->clear();
    EXPECT_EQ(grown(), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(grown(), 0);
    const auto window = scriptedOwner();
    EXPECT_EQ(grown(), 1);
    user.destroyWindow(window);
    EXPECT_EQ(grown(), 1);
    pasteboard->setString(u"own"_s);
    resultOf(other->items()); // reading changes nothing
    EXPECT_EQ(grown(), 1);
}

TEST_F(PasteboardTest, ClearingEmptiesAtTheNextTurnWhoeverOwnsTheContent)
{
    pasteboard->setString(u"own"_s);
    pasteboard->clear();
    EXPECT_NE(user.selectionOwner(), noWindow) << "a write may follow";
    QCoreApplication::processEvents();
    EXPECT_EQ(user.selectionOwner(), noWindow);
    EXPECT_TRUE(resultOf(pasteboard->items()).isEmpty());
    scriptedOwner();
    pasteboard->clear();
    EXPECT_TRUE(resultOf(pasteboard->items()).isEmpty()) << "asked before the next turn";
    EXPECT_EQ(user.selectionOwner(), noWindow);
}

TEST_F(PasteboardTest, WriteAfterClearLeavesNoEmptyMoment)
{
    pasteboard->setString(u"old"_s);
    const auto before = other->changeCount();
    pasteboard->clear();
    pasteboard->setString(u"new"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(other->changeCount(), before + 1);
    EXPECT_EQ(xclip({u"-o"_s}), "new");
}

TEST_F(PasteboardTest, WhoeverAsksForTheTextIsCounted)
{
    pasteboard->write(
        {PasteboardItem{{Pasteboard::plainString.toString(), {"text"}}, {Pasteboard::transientType.toString(), {}}}});
    xclip({u"-o"_s, u"-t"_s, u"TARGETS"_s});
    xclip({u"-o"_s, u"-t"_s, u"x-kde-passwordManagerHint"_s});
    EXPECT_EQ(pasteboard->readCount(), 0);
    xclip({u"-o"_s, u"-t"_s, u"UTF8_STRING"_s});
    EXPECT_EQ(pasteboard->readCount(), 1);
    pasteboard->setString(u"next"_s);
    EXPECT_EQ(pasteboard->readCount(), 0);
}

TEST_F(PasteboardTest, ContentOfAnotherProgramTakesThePlaceOfOwn)
{
    pasteboard->setString(u"own"_s);
    other->setString(u"theirs"_s);
    EXPECT_EQ(resultOf(pasteboard->items()).value(0).value(u"UTF8_STRING"_s).bytes, "theirs");
    pasteboard->setString(u"own again"_s);
    EXPECT_EQ(xclip({u"-o"_s}), "own again");
}

} // namespace
