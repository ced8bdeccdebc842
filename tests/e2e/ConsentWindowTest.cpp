// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

/// The question is on the screen and has the keyboard without a click.
bool isAsked(Desktop &desktop)
{
    return await([&] {
        const QByteArray window = desktop.windowNamed(u"Quillo"_s);
        return !window.isEmpty() && desktop.user().focusedWindow() == window.toUInt();
    });
}

bool isClosed(const Desktop &desktop)
{
    return await([&] { return desktop.windowNamed(u"Quillo"_s).isEmpty(); });
}

} // namespace

TEST(ConsentWindowTest, KeysAnswerIt)
{
    Desktop desktop({.hasConsent = false});
    const struct {
        std::vector<int> keys;
        bool isShifted;
    } refusals[] = {
        {{KEY_ESC}, false},
        {{KEY_TAB, KEY_TAB, KEY_SPACE}, true}, // backwards to "Not now", past the default button
        {{KEY_TAB, KEY_TAB, KEY_TAB, KEY_ENTER}, false},
    };
    for (const auto &[keys, isShifted] : refusals) {
        ASSERT_TRUE(isAsked(desktop));
        for (const int key : keys) {
            const bool isTab = isShifted && key == KEY_TAB;
            if (isTab) {
                desktop.user().press(KEY_LEFTSHIFT);
            }
            desktop.user().tap(key);
            if (isTab) {
                desktop.user().release(KEY_LEFTSHIFT);
            }
        }
        EXPECT_TRUE(isClosed(desktop));
        EXPECT_EQ(desktop.status()[u"consent"_s], false);
        EXPECT_EQ(desktop.tap().count("POST /v1/devices"), 0) << "nothing is sent";
        desktop.command({u"toggle"_s}); // asks again
        EXPECT_EQ(desktop.status()[u"state"_s], u"idle"_s);
    }
    ASSERT_TRUE(isAsked(desktop));
    desktop.user().tap(KEY_ENTER);
    EXPECT_TRUE(isClosed(desktop));
    EXPECT_EQ(desktop.status()[u"consent"_s], true);
    EXPECT_TRUE(await([&] { return desktop.tap().count("GET /v1/balance") > 0; }));
    EXPECT_EQ(desktop.command({u"toggle"_s}).status, 0);
    EXPECT_EQ(desktop.status()[u"state"_s], u"recording"_s);
}

TEST(ConsentWindowTest, TheDefaultButtonIsReachedByTabs)
{
    Desktop desktop({.hasConsent = false, .hasEditor = false});
    ASSERT_TRUE(isAsked(desktop));
    for (int i = 0; i < 4; ++i) { // past the two links and "Not now"
        desktop.user().tap(KEY_TAB);
    }
    desktop.user().tap(KEY_SPACE);
    EXPECT_TRUE(isClosed(desktop));
    EXPECT_EQ(desktop.status()[u"consent"_s], true);
}
