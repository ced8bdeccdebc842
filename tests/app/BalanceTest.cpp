// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class BalanceTest : public AppModelFixture {
protected:
    /// Whether a poll is planned: the permission watch is the only other timer while nothing is dictated.
    bool isWatching() const { return fake.clock.pending() == 2; }

    /// Lets the next poll happen and its reply arrive.
    void poll()
    {
        ASSERT_TRUE(isWatching());
        const int before = server.count("/v1/balance");
        const bool ends = model->balance() && balance > *model->balance();
        fake.clock.advance(5s);
        ASSERT_TRUE(await([&] { return server.count("/v1/balance") > before; }));
        ASSERT_TRUE(await([&] { return isWatching() || (ends && model->balance() == balance); }));
    }

    void buy()
    {
        const int links = server.count("/v1/checkout/link");
        const auto opened = fake.workspace.opened.size();
        model->buyTokens();
        ASSERT_TRUE(await([&] {
            return server.count("/v1/checkout/link") > links && fake.workspace.opened.size() > opened && isWatching();
        }));
    }
};

} // namespace

TEST_F(BalanceTest, APurchaseIsWatchedUntilItArrives)
{
    start();
    buy();
    EXPECT_EQ(fake.workspace.opened, QList<QUrl>{QUrl(u"https://pay.example/1"_s)});
    poll();
    balance = 5; // spent meanwhile
    poll();
    EXPECT_EQ(model->balance(), 5);
    balance = 11;
    poll();
    EXPECT_EQ(model->balance(), 11);
    EXPECT_FALSE(isWatching());
}

TEST_F(BalanceTest, ARefusedCheckoutIsShownAndNothingIsWatched)
{
    start();
    checkout = {503, R"({"error":"closed","message":"The shop is closed."})"};
    model->buyTokens();
    ASSERT_TRUE(await([&] { return phase() == error(u"The shop is closed."_s); }));
    EXPECT_TRUE(fake.workspace.opened.isEmpty());
    fake.clock.advance(2500ms); // the message hides
    EXPECT_FALSE(isWatching());
}

TEST_F(BalanceTest, TheBuyButtonHidesTheHud)
{
    start();
    model->hud().show(HUDPhase::OutOfTokens{});
    model->hud().model().buyTokens();
    EXPECT_FALSE(panel.isVisible);
    ASSERT_TRUE(await([&] { return !fake.workspace.opened.isEmpty(); }));
}

TEST_F(BalanceTest, AFailedRefreshKeepsWhatWasKnown)
{
    start();
    server.onRequest = [](const HttpServer::Request &) { return HttpServer::Response{500}; };
    const int before = server.count("/v1/balance");
    model->refreshBalance();
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") > before; }));
    EXPECT_EQ(model->balance(), 10);
    EXPECT_FALSE(panel.isVisible);
}

TEST_F(BalanceTest, AWatchGivesUpAfterAQuarterOfAnHourAndANewPurchaseReplacesIt)
{
    start();
    buy();
    for (int i = 0; i < 100; ++i) {
        poll();
    }
    buy(); // starts counting anew
    for (int i = 0; i < 179; ++i) {
        poll();
    }
    balance = 3;
    fake.clock.advance(5s);
    ASSERT_TRUE(await([&] { return model->balance() == 3; }));
    EXPECT_FALSE(isWatching());
}

TEST_F(BalanceTest, PollsThatFailCountAndWithoutAnEarlierBalanceNoneIsThePurchase)
{
    const auto answer = server.onRequest;
    bool isDown = true;
    server.onRequest = [&](const HttpServer::Request &request) {
        return isDown && request.path == "/v1/balance" ? HttpServer::Response{500} : answer(request);
    };
    model->start();
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") == 1; }));
    buy();
    for (int i = 0; i < 90; ++i) {
        poll();
    }
    EXPECT_EQ(model->balance(), std::nullopt);
    isDown = false;
    for (int i = 0; i < 89; ++i) {
        ++balance;
        poll();
    }
    EXPECT_TRUE(isWatching());
    balance = 3;
    fake.clock.advance(5s);
    ASSERT_TRUE(await([&] { return model->balance() == 3; }));
    EXPECT_FALSE(isWatching());
}

TEST_F(BalanceTest, TwoPurchasesAtOnceOpenTwoPagesAndAreWatchedAsOne)
{
    start();
    const int before = server.count("/v1/balance");
    model->buyTokens();
    model->buyTokens();
    ASSERT_TRUE(await([&] { return fake.workspace.opened.size() == 2; }));
    poll();
    poll();
    EXPECT_EQ(server.count("/v1/balance"), before + 2);
    balance = 20;
    poll();
    EXPECT_FALSE(isWatching());
}
