// SPDX-License-Identifier: MIT
#include "api/Api.h"
#include "support/HttpClient.h"
#include "support/RunningServer.h"
#include "support/TestDatabase.h"

#include <QJsonArray>
#include <QMessageAuthenticationCode>
#include <QUrlQuery>
#include <gmock/gmock.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Provider = CheckoutOptions::Provider;

namespace {

constexpr qint64 now = 1'700'000'000;
const std::string webhookSecret = "whsec_test";

class UnusedEngine : public Engine {
public:
    int concurrency() const override { return 1; }
    QString transcribe(const Recording &) override { throw EngineError("not here"); }
};

/// Stands in for Stripe's API: keeps the order, and sends the buyer to a page.
class Stripe : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 100'000; }
    net::awaitable<Reply> handle(const Request &request) override
    {
        last = request;
        order = QUrlQuery(QString::fromStdString(request.body));
        co_return reply;
    }

    QString ordered(QStringView name) const
    {
        const auto encoded = QString::fromLatin1(QUrl::toPercentEncoding(name.toString()));
        return order.queryItemValue(encoded, QUrl::FullyDecoded);
    }

    Request last;
    QUrlQuery order;
    Reply reply;
};

class CheckoutTest : public testing::TestWithParam<DatabaseKind> {
protected:
    void start(Provider provider)
    {
        stripeServer.start(stripe);
        stripe.reply.body = R"({"id":"cs_1","url":"https://pay.example/c/1"})";
        ApiOptions options;
        options.checkout = {.provider = provider,
                            .packs = {{3600, 199}, {36'000, 1499}},
                            .currency = u"eur"_s,
                            .stripe = {stripeServer.url(), "sk_test", webhookSecret, 20s},
                            .publicUrl = server.url()};
        store = std::make_unique<StoreThreads>(database.location(), GrantPolicy{.freeTokens = 0}, clock);
        transcriber = std::make_unique<Transcriber>(std::make_unique<UnusedEngine>(), 60s, 1);
        api = std::make_unique<Api>(options, *store, *transcriber, clock);
        server.start(*api);
        device = registeredAt(server.port());
    }

    void TearDown() override { server.stop(); }

    HttpAnswer send(std::string_view method, std::string_view path, const std::string &headers = {},
                    std::string_view body = {}) const
    {
        return HttpClient(server.port()).send(method, path, headers, body);
    }

    /// The path of a new link.
    std::string link() const
    {
        const auto url = send("POST", "/v1/checkout/link", device).json()[u"url"_s].toString().toStdString();
        EXPECT_EQ(url.substr(0, server.url().size()), server.url());
        return url.substr(server.url().size());
    }

    qint64 balance() const { return send("GET", "/v1/balance", device).balance(); }

    static std::string event(const QString &id, const QString &type, const QString &purchase, const QString &status,
                             qint64 amount = 1499)
    {
        const QJsonObject session{{u"object"_s, u"checkout.session"_s},
                                  {u"client_reference_id"_s, purchase},
                                  {u"payment_status"_s, status},
                                  {u"amount_total"_s, amount},
                                  {u"amount_refunded"_s, amount},
                                  {u"payment_intent"_s, u"pi_1"_s},
                                  {u"currency"_s, u"eur"_s}};
        const QJsonObject event{{u"id"_s, id}, {u"type"_s, type}, {u"data"_s, QJsonObject{{u"object"_s, session}}}};
        return QJsonDocument(event).toJson().toStdString();
    }

    unsigned receive(const std::string &event, qint64 time = now, const std::string &secret = webhookSecret) const
    {
        const auto signedText = std::to_string(time) + "." + event;
        const auto code = QMessageAuthenticationCode::hash(
            QByteArray::fromStdString(signedText), QByteArray::fromStdString(secret), QCryptographicHash::Sha256);
        const auto header = "Stripe-Signature: t=" + std::to_string(time) + ",v1=00,v1=" + code.toHex().toStdString();
        return send("POST", "/webhooks/stripe", header + "\r\n", event).status;
    }

    TestDatabase database{GetParam()};
    WallClock clock = [] { return now; };
    Stripe stripe;
    RunningServer stripeServer;
    RunningServer server;
    std::unique_ptr<StoreThreads> store;
    std::unique_ptr<Transcriber> transcriber;
    std::unique_ptr<Api> api;
    std::string device;
};

INSTANTIATE_ON_BOTH_DATABASES(CheckoutTest);

} // namespace

TEST_P(CheckoutTest, CreditsAtOnceOnADevelopmentServerAndSaysSo)
{
    start(Provider::Manual);
    const auto path = link();
    EXPECT_EQ(send("POST", path, {}, "pack=2").error(), "bad_request");
    const auto page = send("GET", path);
    EXPECT_EQ(page.status, 200);
    EXPECT_THAT(page.contentType, testing::StartsWith("text/html"));
    EXPECT_THAT(page.body, testing::HasSubstr("development server"));
    EXPECT_THAT(page.body, testing::Not(testing::HasSubstr("<script")));
    EXPECT_EQ(balance(), 0);
    EXPECT_THAT(send("POST", path, {}, "pack=0").body, testing::HasSubstr("The balance is now 3,600"));
    EXPECT_EQ(send("POST", path, {}, "pack=0").status, 410);
    EXPECT_EQ(send("GET", path).status, 410);
    EXPECT_EQ(send("GET", "/checkout/unknown").status, 410);
    EXPECT_EQ(balance(), 3600);
}

TEST_P(CheckoutTest, SellsWithStripeAndCreditsWhatItSaysIsPaidOnce)
{
    start(Provider::Stripe);
    const auto path = link();
    EXPECT_THAT(send("GET", path).body, testing::HasSubstr("14.99 EUR"));
    const auto redirection = send("POST", path, {}, "pack=1");
    EXPECT_EQ(redirection.status, 303);
    EXPECT_EQ(redirection.location, "https://pay.example/c/1");
    EXPECT_EQ(send("POST", path, {}, "pack=1").status, 410);

    EXPECT_EQ(stripe.last.method + " " + stripe.last.path, "POST /v1/checkout/sessions");
    EXPECT_EQ(stripe.last.authorization, "Bearer sk_test");
    EXPECT_EQ(stripe.last.contentType, "application/x-www-form-urlencoded");
    EXPECT_EQ(stripe.ordered(u"mode"), u"payment"_s);
    EXPECT_EQ(stripe.ordered(u"line_items[0][price_data][unit_amount]"), u"1499"_s);
    EXPECT_EQ(stripe.ordered(u"line_items[0][price_data][currency]"), u"eur"_s);
    EXPECT_EQ(send("GET", stripe.ordered(u"success_url").toStdString().substr(server.url().size())).status, 200);
    EXPECT_EQ(send("GET", stripe.ordered(u"cancel_url").toStdString().substr(server.url().size())).status, 200);

    const auto purchase = stripe.ordered(u"client_reference_id");
    const auto completed = u"checkout.session.completed"_s;
    const auto paid = event(u"evt_1"_s, completed, purchase, u"paid"_s);
    EXPECT_EQ(receive(paid, now - 301), 400);
    EXPECT_EQ(receive(paid, now, "whsec_other"), 400);
    EXPECT_EQ(send("POST", "/webhooks/stripe", {}, paid).status, 400);
    EXPECT_EQ(receive(event(u"evt_0"_s, completed, purchase, u"unpaid"_s)), 200);
    EXPECT_EQ(receive(event(u"evt_2"_s, u"charge.updated"_s, purchase, u"paid"_s)), 200);
    EXPECT_EQ(receive(event(u"evt_3"_s, completed, u"unknown"_s, u"paid"_s)), 200);
    EXPECT_EQ(receive(event(u"evt_5"_s, completed, purchase, u"paid"_s, 1)), 200);
    EXPECT_EQ(balance(), 0);
    EXPECT_EQ(receive(paid, now - 299), 200);
    EXPECT_EQ(balance(), 36'000);
    EXPECT_EQ(receive(paid), 200);
    EXPECT_EQ(receive(event(u"evt_4"_s, u"checkout.session.async_payment_succeeded"_s, purchase, u"paid"_s)), 200);
    EXPECT_EQ(balance(), 36'000);
    EXPECT_EQ(receive(event(u"evt_6"_s, u"charge.refunded"_s, {}, {}, 1)), 200);
    EXPECT_EQ(balance(), 35'975);
}

TEST_P(CheckoutTest, KeepsTheLinkWhenStripeCantBeAsked)
{
    start(Provider::Stripe);
    const auto path = link();
    stripe.reply.status = 500;
    EXPECT_EQ(send("POST", path, {}, "pack=0").status, 503);
    stripe.reply.status = 200;
    stripe.reply.body = R"({"url":"javascript:x"})";
    EXPECT_EQ(send("POST", path, {}, "pack=0").status, 503);
    stripe.reply.body = R"({"url":"https://pay.example/c/2"})";
    EXPECT_EQ(send("POST", path, {}, "pack=0").status, 303);
}
