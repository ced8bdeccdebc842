// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionOwner.h"
#include "TestClient.h"
#include "support/Await.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class SelectionOwnerTest : public testing::Test {
protected:
    /// Asks for data that goes in parts and takes none of them.
    xcb_window_t requestParts(SelectionOwner &owner)
    {
        EXPECT_TRUE(owner.own({{"image/png", "image/png", 8, QByteArray(1'000'000, 'x')}}));
        const auto window = user.addWindow();
        xcb_convert_selection(user.xcb(), window, user.atom("CLIPBOARD"), user.atom("image/png"), user.atom("DATA"),
                              XCB_CURRENT_TIME);
        user.sync();
        EXPECT_TRUE(user.next(XCB_SELECTION_NOTIFY));
        return window;
    }

    VirtualDisplay display;
    TestClient user{display};
    std::unique_ptr<X11Connection> connection = X11Connection::create(display.name());
};

TEST_F(SelectionOwnerTest, ReaderThatGoesAwayIsForgotten)
{
    SelectionOwner owner(*connection, 1h);
    const auto window = requestParts(owner);
    EXPECT_EQ(owner.transferCount(), 1U);
    user.destroyWindow(window);
    EXPECT_TRUE(await([&] { return owner.transferCount() == 0; }));
}

TEST_F(SelectionOwnerTest, ReaderThatTakesNoPartIsGivenUp)
{
    SelectionOwner owner(*connection, 1ms);
    requestParts(owner);
    EXPECT_TRUE(await([&] { return owner.transferCount() == 0; }));
}

TEST_F(SelectionOwnerTest, TheClipboardManagerSavesTheContentAndIsNotWaitedForInVain)
{
    SelectionOwner owner(*connection);
    ASSERT_TRUE(owner.own({{"a", "a", 8, "kept"}}));
    owner.save(1h); // nobody to save it
    const auto manager = user.addWindow();
    ASSERT_TRUE(user.ownsSelection(manager, "CLIPBOARD_MANAGER"));
    owner.save(1ms);
    ASSERT_EQ(user.takeEvents(XCB_SELECTION_REQUEST), 1);

    QTimer::singleShot(0, [&] {
        const auto event = user.next(XCB_SELECTION_REQUEST);
        ASSERT_TRUE(event);
        const auto &request = eventAs<xcb_selection_request_event_t>(*event);
        EXPECT_EQ(request.target, user.atom("SAVE_TARGETS"));
        xcb_convert_selection(user.xcb(), manager, user.atom("CLIPBOARD"), user.atom("a"), user.atom("DATA"),
                              XCB_CURRENT_TIME);
        user.sync();
        ASSERT_TRUE(user.next(XCB_SELECTION_NOTIFY)) << "the owner answers while it waits";
        xcb_selection_notify_event_t done{};
        done.response_type = XCB_SELECTION_NOTIFY;
        done.requestor = request.requestor;
        done.selection = request.selection;
        xcb_send_event(user.xcb(), 0, request.requestor, 0, reinterpret_cast<const char *>(&done));
        user.sync();
    });
    owner.save(1h);
}

TEST_F(SelectionOwnerTest, LateWordOfAnEarlierLossDoesNotEndTheOwnership)
{
    SelectionOwner owner(*connection);
    ASSERT_TRUE(owner.own({{"a", "a", 8, "old"}}));
    ASSERT_TRUE(user.ownsSelection(user.addWindow())); // the loss of this is still to be noticed
    ASSERT_TRUE(owner.own({{"a", "a", 8, "new"}}));
    const auto window = user.addWindow();
    xcb_convert_selection(user.xcb(), window, user.atom("CLIPBOARD"), user.atom("a"), user.atom("DATA"),
                          XCB_CURRENT_TIME);
    user.sync();
    const auto answer = user.next(XCB_SELECTION_NOTIFY);
    ASSERT_TRUE(answer);
    EXPECT_NE(eventAs<xcb_selection_notify_event_t>(*answer).property, xcb_atom_t(XCB_ATOM_NONE));
}

} // namespace
