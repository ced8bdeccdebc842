// SPDX-License-Identifier: MIT
#include "Panel.h"
#include "e2e/Browser.h"
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PurchaseTest, TokensBoughtInTheDefaultBrowserAreInTheMenu)
{
    Desktop desktop({.hasEditor = false, .serverOptions = {u"--free-tokens"_s, u"10"_s}});
    Browser browser(desktop.session());
    Panel panel(Panel::Host::There, desktop.session().busAddress());
    ASSERT_TRUE(desktop.awaitStatus(u"balance"_s, 10));

    EXPECT_EQ(desktop.command({u"buy-tokens"_s}).status, 0);
    browser.awaitOpened();
    EXPECT_TRUE(await([&] { return browser.text().contains(u"Get tokens"_s); })) << browser.address().toStdString();
    browser.click(u"button"_s);
    EXPECT_TRUE(await([&] { return browser.text().contains(u"3,600 tokens were added"_s); }))
        << browser.text().toStdString();

    EXPECT_TRUE(desktop.awaitStatus(u"balance"_s, 3610)); // asked for every five seconds
    const auto isInMenu = [&panel] {
        const auto items = panel.menu().children;
        return std::ranges::any_of(
            items, [](const DBusMenuLayout &item) { return item.values.value(u"label"_s) == u"3610 tokens left"_s; });
    };
    EXPECT_TRUE(await(isInMenu));
}
