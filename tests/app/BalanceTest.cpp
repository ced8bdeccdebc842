// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class BalanceTest : public AppModelFixture {
protected:
    /// Whether a poll is planned: the permission watch is the only other timer while nothing is dictated.
    bool isWatching() const { return fake.clock.pending() == 2; }

    /// Lets the next poll happen, five seconds after the last, and its reply arrive.
    void poll()
    {
        ASSERT_TRUE(isWatching());
        const int before = server.count("/v1/balance");
        const bool ends = model->balance() && balance > *model->balance();
        fake.clock.advance(4999ms);
        QCoreApplication::processEvents();
        ASSERT_EQ(server.count("/v1/balance"), before);
        fake.clock.advance(1ms);
        ASSERT_TRUE(await([&] { return server.count("/v1/balance") > before; }));
        ASSERT_TRUE(await([&] { return isWatching() || (ends && model->balance() == balance); }));
    }

    /// Whether no poll comes any more.
    bool hasEnded()
    {
        const int before = server.count("/v1/balance");
        fake.clock.advance(1min);
        QCoreApplication::processEvents();
        return !isWatching() && server.count("/v1/balance") == before;
    }

    void buy()
    {
        const auto opened = fake.workspace.opened.size();
        model->buyTokens();
        ASSERT_TRUE(await([&] { return fake.workspace.opened.size() > opened; }));
    }
};

} // namespace

TEST_F(BalanceTest, APurchaseIsWatchedUntilTheBalanceRisesAboveWhatItWas)
{
    start();
    buy();
    EXPECT_EQ(fake.workspace.opened, QList<QUrl>{QUrl(u"https://pay.example/1"_s)});
    for (const int64_t reply : {10, 5, 10, 11}) { // 5: spent meanwhile
        EXPECT_TRUE(isWatching());
        balance = reply;
        poll();
        EXPECT_EQ(model->balance(), reply);
    }
    EXPECT_TRUE(hasEnded());
}

TEST_F(BalanceTest, WithoutAnEarlierBalanceAWatchLastsAQuarterOfAnHourWhateverTheAnswers)
{
    const auto answer = server.onRequest;
    bool isDown = true;
    server.onRequest = [&](const HttpServer::Request &request) {
        return isDown && request.path == "/v1/balance" ? HttpServer::Response{500} : answer(request);
    };
    model->start();
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") == 1; }));
    buy();
    const auto begin = fake.clock.now();
    for (int i = 1; i < 180; ++i) {
        poll();
        EXPECT_EQ(model->balance().has_value(), !isDown);
        isDown = i < 90;
        balance += isDown ? 0 : 1;
    }
    fake.clock.advance(5s);
    EXPECT_EQ(fake.clock.now() - begin, 15min);
    ASSERT_TRUE(await([&] { return model->balance() == balance; }));
    EXPECT_TRUE(hasEnded());
}

TEST_F(BalanceTest, ASecondPurchaseReplacesTheWatchAndWhatItHasAsked)
{
    start();
    buy();
    bool isFirst = true;
    server.onRequest = [&, answer = server.onRequest](const HttpServer::Request &request) {
        if (request.path == "/v1/balance" && std::exchange(isFirst, false)) {
            buy(); // while the first watch waits for its answer
            return HttpServer::Response{200, R"({"balance":20})"};
        }
        return answer(request);
    };
    bool isOverwritten = false;
    QObject::connect(&*model, &AppModel::balanceChanged, [&] { isOverwritten |= model->balance() == 20; });
    const int before = server.count("/v1/balance");
    fake.clock.advance(5s);
    ASSERT_TRUE(await([&] { return fake.workspace.opened.size() == 2; }));
    for (const int64_t reply : {10, 9, 11}) {
        balance = reply;
        poll();
    }
    EXPECT_EQ(server.count("/v1/balance"), before + 4);
    EXPECT_FALSE(isOverwritten);
    EXPECT_TRUE(hasEnded());
}

TEST_F(BalanceTest, FailuresOfTheCheckoutAreShownAndThoseOfARefreshAreNot)
{
    start();
    server.onRequest = [](const HttpServer::Request &) {
        return HttpServer::Response{503, R"({"error":"closed","message":"The shop is closed."})"};
    };
    const int before = server.count("/v1/balance");
    model->refreshBalance();
    model->refreshBalance(); // while it is under way: nothing
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") > before; }));
    model->hud().model().buyTokens(); // as its button does
    EXPECT_FALSE(panel.isVisible);
    ASSERT_TRUE(await([&] { return panel.isVisible; }));
    EXPECT_EQ(phase(), error(u"The shop is closed."_s));
    EXPECT_TRUE(fake.workspace.opened.isEmpty());
    EXPECT_EQ(model->balance(), 10);
    EXPECT_EQ(server.count("/v1/balance"), before + 1);

    const HUDModel::Phase noBrowser = error(u"Couldn't open the checkout page in a browser"_s);
    for (const char *url : {"file:///etc/passwd", "https://pay.example/1"}) {
        fake.workspace.hasBrowser = false;
        server.onRequest = [url](const HttpServer::Request &) {
            return HttpServer::Response{200, QByteArray(R"({"url":")") + url + "\"}"};
        };
        model->hud().hide();
        model->buyTokens();
        EXPECT_TRUE(await([&] { return panel.isVisible && phase() == noBrowser; }));
    }
    EXPECT_EQ(fake.workspace.opened, QList<QUrl>{QUrl(u"https://pay.example/1"_s)}); // was tried
    EXPECT_TRUE(hasEnded());
}
