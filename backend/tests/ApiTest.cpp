// SPDX-License-Identifier: MIT
#include "http/Api.h"
#include "support/Audio.h"
#include "support/HttpClient.h"
#include "support/RunningServer.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <latch>

using namespace std::chrono_literals;

namespace {

/// Answers at once, or, with `together` set, when that many transcriptions run.
class StubEngine : public Engine {
public:
    int concurrency() const override { return 2; }
    QString transcribe(const Recording &) override
    {
        ++runs;
        if (together) {
            together->arrive_and_wait();
        }
        if (fails) {
            throw EngineError("out of order");
        }
        return text;
    }

    std::atomic<int> runs = 0;
    bool fails = false;
    QString text = QStringLiteral(" hello world ");
    std::latch *together = nullptr;
};

class ApiTest : public testing::Test {
protected:
    void start(qint64 freeTokens = 3600, ApiOptions options = {}, ServerLimits limits = {})
    {
        server = std::make_unique<RunningServer>(limits);
        store = std::make_unique<StoreThread>(database(), GrantPolicy{.freeTokens = freeTokens},
                                              [] { return 1'700'000'000; });
        auto owned = std::make_unique<StubEngine>();
        engine = owned.get();
        transcriber = std::make_unique<Transcriber>(std::move(owned), 60s);
        options.publicUrl = server->url();
        api = std::make_unique<Api>(options, *store, *transcriber);
        server->start(*api);
    }

    void TearDown() override { server->stop(); }

    QString database() const { return folder.filePath(QStringLiteral("backend.db")); }
    HttpClient connect() const { return HttpClient(server->port()); }

    /// Registers a device; its authorization header.
    std::string registered() const
    {
        const auto device = connect().send("POST", "/v1/devices", {}, R"({"platform":"macos"})").json();
        return "Authorization: Bearer " + device[QLatin1String("deviceId")].toString().toStdString() + "." +
               device[QLatin1String("secret")].toString().toStdString() + "\r\n";
    }

    HttpAnswer transcribe(const std::string &authorization, const std::string &file) const
    {
        return connect().send("POST", "/v1/transcribe", authorization + std::string(multipartHeader), multipart(file));
    }

    qint64 balance(const std::string &authorization) const
    {
        return connect().send("GET", "/v1/balance", authorization).balance();
    }

    QTemporaryDir folder;
    std::unique_ptr<RunningServer> server; // stopped before what it uses goes, gone after the threads that resume on it
    std::unique_ptr<StoreThread> store;
    StubEngine *engine = nullptr;
    std::unique_ptr<Transcriber> transcriber;
    std::unique_ptr<Api> api;
};

} // namespace

TEST_F(ApiTest, RegistersATranscribingAndChargedDevice)
{
    start(10);
    const auto answer =
        connect().send("POST", "/v1/devices", "Content-Type: application/json\r\n", R"({"platform":"macos"})");
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.contentType, "application/json");
    EXPECT_EQ(answer.json()[QLatin1String("freeGrantMissed")], QJsonValue(false));

    const auto device = registered();
    EXPECT_EQ(connect().send("GET", "/v1/balance", device).body, R"({"balance":10,"unmetered":false})");
    EXPECT_EQ(transcribe(device, tone()).body, R"({"balance":8,"text":"hello world"})");
    EXPECT_EQ(balance(device), 8);
}

TEST_F(ApiTest, RefusesEveryWrongCredentialAlike)
{
    start();
    const auto device = registered();
    const auto withoutEnd = device.substr(0, device.size() - 2);
    for (const auto &header :
         {std::string(), std::string("Authorization: Bearer\r\n"), std::string("Authorization: Bearer x.y\r\n"),
          std::string("Authorization: Basic eDp5\r\n"), withoutEnd + "x\r\n",
          withoutEnd.substr(0, withoutEnd.find('.')) + "\r\n"}) {
        for (const auto *const path : {"/v1/transcribe", "/v1/checkout/link"}) {
            const auto answer = connect().send("POST", path, header);
            EXPECT_EQ(answer.status, 401) << header;
            EXPECT_EQ(answer.body, R"({"error":"unauthorized","message":"This device is not known."})");
        }
    }
}

TEST_F(ApiTest, RefusesARecordingThatTheBalanceDoesNotCoverBeforeTheEngineRuns)
{
    start(1);
    const auto device = registered();
    const auto answer = transcribe(device, tone());
    EXPECT_EQ(answer.status, 402);
    EXPECT_EQ(answer.body, R"({"error":"insufficient_tokens","message":"You're out of tokens."})");
    EXPECT_EQ(engine->runs, 0);
    EXPECT_EQ(balance(device), 1);
}

TEST_F(ApiTest, TakesNothingForWhatBringsNoText)
{
    start(10);
    const auto device = registered();
    EXPECT_EQ(transcribe(device, silence()).body, R"({"balance":10,"text":""})");
    EXPECT_EQ(engine->runs, 0);
    engine->text = QStringLiteral(" ");
    EXPECT_EQ(transcribe(device, tone()).body, R"({"balance":10,"text":""})");
    engine->fails = true;
    EXPECT_EQ(transcribe(device, tone()).error(), "engine_unavailable");
    EXPECT_EQ(balance(device), 10);
}

TEST_F(ApiTest, NeverOverdrawsWithTwoRequestsAtOnce)
{
    start(3); // one recording costs 2
    const auto device = registered();
    std::latch both(2);
    engine->together = &both;
    auto first = std::async(std::launch::async, [&] { return transcribe(device, tone()).status; });
    const auto second = transcribe(device, tone()).status;
    EXPECT_THAT((std::vector{first.get(), second}), testing::UnorderedElementsAre(200, 402));
    EXPECT_EQ(engine->runs, 2);
    EXPECT_EQ(balance(device), 1);
}

TEST_F(ApiTest, TakesNothingFromAClientThatWentAway)
{
    start(10);
    const auto device = registered();
    std::latch entered(2);
    engine->together = &entered;
    auto client = connect();
    const auto body = multipart(tone());
    client.write("POST /v1/transcribe HTTP/1.1\r\nHost: test\r\n" + device + std::string(multipartHeader) +
                 "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
    while (engine->runs == 0) {
        std::this_thread::yield();
    }
    client.close();
    entered.arrive_and_wait();
    server->stop(); // returns when the request has been dealt with
    Store kept(database(), {}, [] { return 0; });
    auto row = kept.database.execute(QStringLiteral("SELECT balance FROM devices"));
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.value(0).toInt(), 10);
}

TEST_F(ApiTest, SellsTokensOnceOverAOneTimePage)
{
    start(0);
    const auto device = registered();
    const auto url = connect().send("POST", "/v1/checkout/link", device).json()[QLatin1String("url")].toString();
    const auto prefix = QString::fromStdString(server->url());
    ASSERT_TRUE(url.startsWith(prefix + QStringLiteral("/checkout/")));
    const auto path = url.mid(prefix.size()).toStdString();

    EXPECT_EQ(connect().send("POST", path, {}, "pack=gigantic").error(), "bad_request");
    const auto page = connect().send("GET", path);
    EXPECT_EQ(page.status, 200);
    EXPECT_THAT(page.contentType, testing::StartsWith("text/html"));
    EXPECT_THAT(page.body, testing::HasSubstr("name=\"pack\" value=\"small\""));
    EXPECT_EQ(balance(device), 0);
    EXPECT_THAT(connect().send("POST", path, {}, "pack=small").body, testing::HasSubstr("The balance is now 3,600"));
    EXPECT_EQ(connect().send("POST", path, {}, "pack=small").status, 410);
    EXPECT_EQ(connect().send("GET", path).status, 410);
    EXPECT_EQ(connect().send("GET", "/checkout/unknown").status, 410);
    EXPECT_EQ(balance(device), 3600);
}

TEST_F(ApiTest, NamesWhatIsWrongWithARequest)
{
    start(10, {.publicUrl = {}, .tokensPerSecond = 1, .largestUpload = 100'000, .manualCheckout = false});
    const auto device = registered();
    const auto upload = device + std::string(multipartHeader);
    struct Case {
        std::string method, path, headers, body;
        unsigned status;
        const char *error;
    };
    const std::vector<Case> cases{
        {"GET", "/", "", "", 404, "not_found"},
        {"GET", "/v1/devices", "", "", 405, "method_not_allowed"},
        {"POST", "/v1/balance?x", device, "", 405, "method_not_allowed"},
        {"POST", "/v1/devices", "", "{", 400, "bad_request"},
        {"POST", "/v1/devices", "", R"({"platform":7})", 400, "bad_request"},
        {"POST", "/v1/devices", "", std::string(20'000, ' '), 413, "payload_too_large"},
        {"POST", "/v1/transcribe", upload, "no part", 400, "bad_request"},
        {"POST", "/v1/transcribe", upload, multipart("no audio"), 415, "unsupported_audio"},
        {"POST", "/v1/transcribe", upload, multipart(std::string(200'000, 'x')), 413, "payload_too_large"},
        {"POST", "/v1/checkout/link", device, "", 404, "not_found"},
    };
    for (const auto &[method, path, headers, body, status, error] : cases) {
        const auto answer = connect().send(method, path, headers, body);
        EXPECT_EQ(answer.status, status) << path;
        EXPECT_EQ(answer.error(), error) << path;
        EXPECT_FALSE(answer.json()[QLatin1String("message")].toString().isEmpty());
    }
}

TEST_F(ApiTest, RefusesALargeBodyBeforeItIsSent)
{
    start();
    auto announced = connect();
    EXPECT_EQ(announced
                  .sendRaw("POST /v1/transcribe HTTP/1.1\r\nHost: test\r\nExpect: 100-continue\r\n"
                           "Content-Length: 99999999999\r\n\r\n")
                  .status,
              413);
    auto chunked = connect();
    EXPECT_EQ(chunked
                  .sendRaw("POST /v1/devices HTTP/1.1\r\nHost: test\r\nTransfer-Encoding: chunked\r\n\r\n"
                           "4001\r\n" +
                           std::string(0x4001, 'x'))
                  .status,
              413);
}

TEST_F(ApiTest, KeepsAConnectionUntilARequestIsMalformed)
{
    start(10);
    const auto device = registered();
    auto client = connect();
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(), 10);
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(), 10);
    client.write("POST /v1/devices HTTP/1.1\r\nHost: test\r\nExpect: 100-continue\r\nContent-Length: 20\r\n\r\n");
    EXPECT_EQ(client.receive().status, 100);
    EXPECT_EQ(client.sendRaw(R"({"platform":"macos"})").status, 200);
    EXPECT_EQ(client.sendRaw("nonsense\r\n\r\n").error(), "bad_request");
    EXPECT_TRUE(client.isClosedByServer());
}

TEST_F(ApiTest, ClosesConnectionsThatAreIdleOrTooSlow)
{
    start(10, {}, {.idle = 20ms, .header = 20ms, .stall = 20ms});
    for (const auto *const beginning : {"", "GET /v1/bal", "POST /v1/devices HTTP/1.1\r\nContent-Length: 9\r\n\r\n{"}) {
        auto client = connect();
        client.write(beginning);
        EXPECT_TRUE(client.isClosedByServer()) << beginning;
    }
}

TEST_F(ApiTest, FinishesTheRunningRequestWhenItStops)
{
    start(10);
    const auto device = registered();
    auto idle = connect();
    EXPECT_EQ(idle.send("GET", "/v1/balance", device).status, 200);
    std::latch entered(2);
    engine->together = &entered;
    auto running = std::async(std::launch::async, [&] { return transcribe(device, tone()).balance(); });
    while (engine->runs == 0) {
        std::this_thread::yield();
    }
    auto stopped = std::async(std::launch::async, [&] { server->stop(); });
    EXPECT_TRUE(idle.isClosedByServer());
    entered.arrive_and_wait();
    EXPECT_EQ(running.get(), 8);
    stopped.get();
}
