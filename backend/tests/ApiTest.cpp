// SPDX-License-Identifier: MIT
#include "api/Api.h"
#include "http/AccessLog.h"
#include "support/Audio.h"
#include "support/HttpClient.h"
#include "support/RunningServer.h"
#include "support/TestDatabase.h"

#include <boost/asio/detached.hpp>
#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <latch>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// Answers at once, or, with `together` set, when that many transcriptions run.
class StubEngine : public Engine {
public:
    int concurrency() const override { return 2; }
    QString transcribe(const Recording &recording) override
    {
        hints = recording.language + "|" + recording.prompt;
        ++runs;
        if (together) {
            together->arrive_and_wait();
        }
        if (fails) {
            throw EngineError("out of order", 7s);
        }
        return text;
    }

    std::atomic<int> runs = 0;
    bool fails = false;
    QString text = QStringLiteral(" hello world ");
    std::string hints;
    std::latch *together = nullptr;
};

struct Start {
    qint64 freeTokens = 3600;
    ApiOptions api = {};
    ServerOptions server = {};
    int places = 16;
};

class ApiFixture {
protected:
    explicit ApiFixture(DatabaseKind kind) : database(kind) {}
    ~ApiFixture() { server->stop(); }

    void start(Start start = {})
    {
        api.reset();
        transcriber.reset();
        store.reset();
        server = std::make_unique<RunningServer>(start.server);
        store = std::make_unique<StoreThreads>(database.location(), GrantPolicy{.freeTokens = start.freeTokens}, clock);
        auto owned = std::make_unique<StubEngine>();
        engine = owned.get();
        transcriber = std::make_unique<Transcriber>(std::move(owned), 60s, start.places);
        start.api.checkout.publicUrl = server->url();
        api = std::make_unique<Api>(start.api, *store, *transcriber, clock);
        server->start(*api, [this](const AccessRecord &record) {
            api->metrics().answered(record);
            log += accessLine(record) + '\n';
        });
    }

    HttpClient connect() const { return HttpClient(server->port()); }

    std::string registered() const { return registeredAt(server->port()); }

    HttpAnswer transcribe(const std::string &authorization, const std::string &file) const
    {
        return connect().send("POST", "/v1/transcribe", authorization + std::string(multipartHeader), multipart(file));
    }

    qint64 balance(const std::string &authorization) const
    {
        return connect().send("GET", "/v1/balance", authorization).balance();
    }

    /// What an upload sends, up to its last byte.
    static std::string upload(const std::string &authorization, const std::string &file)
    {
        const auto body = multipart(file);
        return "POST /v1/transcribe HTTP/1.1\r\nHost: test\r\n" + authorization + std::string(multipartHeader) +
               "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
    }

    /// Uploads and waits until the engine works on it, which it does until `release` is arrived at.
    void occupyEngine(HttpClient &client, const std::string &device, std::latch &release) const
    {
        engine->together = &release;
        client.write(upload(device, tone()));
        while (engine->runs == 0) {
            std::this_thread::yield();
        }
    }

    TestDatabase database;
    WallClock clock = [] { return 1'700'000'000; };
    std::string log;
    std::unique_ptr<RunningServer> server; // stopped before what it uses goes, gone after the threads that resume on it
    net::thread_pool waiting{1};           // so are these
    std::unique_ptr<StoreThreads> store;
    StubEngine *engine = nullptr;
    std::unique_ptr<Transcriber> transcriber;
    std::unique_ptr<Api> api;
};

class ApiTest : public ApiFixture, public testing::Test {
protected:
    ApiTest() : ApiFixture(DatabaseKind::Sqlite) {}
};

/// What the database has a part in.
class ApiDatabaseTest : public ApiFixture, public testing::TestWithParam<DatabaseKind> {
protected:
    ApiDatabaseTest() : ApiFixture(GetParam()) {}
};

INSTANTIATE_ON_BOTH_DATABASES(ApiDatabaseTest);

} // namespace

TEST_P(ApiDatabaseTest, RegistersATranscribingAndChargedDevice)
{
    start({.freeTokens = 10});
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

TEST_P(ApiDatabaseTest, TakesTheTokensOfADeliveredTranscriptAsSoonAsTheDatabaseLetsIt)
{
    start({.freeTokens = 10, .api = {.transcription = {.chargeDelay = 1ms, .chargeAttempts = 14}}});
    const auto device = registered();
    std::latch entered(2);
    auto client = connect();
    occupyEngine(client, device, entered);
    Store other(database.location(), {}, clock);
    other.database.change(u"UPDATE devices SET held = 0"_s); // which it lets nobody fall below
    entered.arrive_and_wait();
    EXPECT_EQ(client.receive().status, 200);
    while (connect().send("GET", "/metrics").body.find("\nquillo_charge_failures_total 0\n") != std::string::npos) {
        std::this_thread::yield();
    }
    other.database.change(u"UPDATE devices SET held = 2"_s);
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(),
              8); // read when all of the upload has been dealt with
    EXPECT_THAT(connect().send("GET", "/metrics").body, testing::HasSubstr("\nquillo_tokens_charged_total 2\n"));
    EXPECT_EQ(other.devices.list({}, 1).first().balance, 8);
    EXPECT_THAT(other.ledger.unexplained(), testing::IsEmpty());
}

TEST_F(ApiTest, RefusesAnUploadBeforeItsBodyIsSent)
{
    start({.freeTokens = 0});
    const auto head = [](const std::string &headers, const char *length = "8000000") {
        return "POST /v1/transcribe HTTP/1.1\r\nHost: test\r\nContent-Length: " + std::string(length) + "\r\n" +
               headers + "\r\n";
    };
    EXPECT_EQ(connect().sendRaw(head({})).status, 401);
    EXPECT_EQ(connect().sendRaw(head("Expect: 100-continue\r\n")).status, 401);
    EXPECT_EQ(connect().sendRaw(head("Expect: 100-continue\r\n", "99999999999")).status, 413);
    EXPECT_EQ(connect().sendRaw(head(registered())).status, 402);
    // Also who listens only when all is sent gets the reply.
    EXPECT_EQ(connect().sendRaw(head({}) + std::string(8'000'000, 'x')).status, 401);
    const auto chunk = "POST /v1/devices HTTP/1.1\r\nHost: test\r\nTransfer-Encoding: chunked\r\n\r\n4001\r\n";
    EXPECT_EQ(connect().sendRaw(chunk + std::string(0x4001, 'x')).status, 413);
}

TEST_F(ApiTest, RefusesWhatItHasNoRoomForUntilItHas)
{
    const auto oneBody = multipart(tone()).size() + 1000;
    struct Case {
        Start start;
        unsigned status;
        const char *error;
        bool isTheDevices; ///< another device has room
    };
    for (const auto &[options, status, error, isTheDevices] :
         {Case{{.server = {.bodies = oneBody}}, 503, "server_busy", false},
          Case{{.places = 1}, 503, "engine_busy", false},
          Case{{.api = {.transcription = {.atOncePerDevice = 1}}}, 429, "too_many_requests", true}}) {
        SCOPED_TRACE(error);
        start(options);
        const auto device = registered();
        std::latch entered(2);
        auto first = connect();
        occupyEngine(first, device, entered);
        const auto refused = transcribe(device, tone());
        EXPECT_EQ(refused.status, status);
        EXPECT_EQ(refused.error(), error);
        EXPECT_GT(std::stoi(refused.retryAfter), 0);
        if (isTheDevices) {
            EXPECT_EQ(transcribe(registered(), tone()).status, 200); // with which the first one goes on
        } else {
            entered.arrive_and_wait();
        }
        EXPECT_EQ(first.receive().status, 200);
        engine->together = nullptr;
        EXPECT_EQ(transcribe(device, tone()).status, 200);
        first.close();
        server->stop();
    }
}

TEST_F(ApiTest, TakesNothingFromAClientThatHasGone)
{
    for (const auto half : {false, true}) {
        start({.freeTokens = 10});
        const auto device = registered();
        std::latch entered(2);
        auto client = connect();
        occupyEngine(client, device, entered);
        if (half) {
            client.closeHalf();
        } else {
            client.close();
        }
        entered.arrive_and_wait();
        if (half) {
            EXPECT_EQ(client.receive().error(), "client_closed");
        }
        client.close();
        server->stop(); // returns when the request has been dealt with
        Store kept(database.location(), {}, clock);
        const auto left = kept.devices.list({}, 9).last();
        EXPECT_EQ(left.balance, 10);
        EXPECT_EQ(left.held, 0);
    }
}

TEST_F(ApiTest, RefusesARecordingThatTheBalanceDoesNotCoverBeforeTheEngineRuns)
{
    start({.freeTokens = 1});
    const auto device = registered();
    const auto answer = transcribe(device, tone());
    EXPECT_EQ(answer.status, 402);
    EXPECT_EQ(answer.body, R"({"error":"insufficient_tokens","message":"You're out of tokens."})");
    EXPECT_EQ(engine->runs, 0);
    EXPECT_EQ(balance(device), 1);
}

TEST_F(ApiTest, TakesNothingForWhatBringsNoText)
{
    start({.freeTokens = 10});
    const auto device = registered();
    EXPECT_EQ(transcribe(device, silence()).body, R"({"balance":10,"text":""})");
    EXPECT_EQ(engine->runs, 0);
    engine->text = QStringLiteral(" ");
    EXPECT_EQ(transcribe(device, tone()).body, R"({"balance":10,"text":""})");
    engine->fails = true;
    const auto failed = transcribe(device, tone());
    EXPECT_EQ(failed.error(), "engine_unavailable");
    EXPECT_EQ(failed.retryAfter, "7");
    EXPECT_EQ(balance(device), 10);
}

TEST_F(ApiTest, CountsTheTimeThatADevicesRecordingsAreDecodedForWhateverComesOfIt)
{
    start({.api = {.transcription = {.decodingPerDevice = 1s, .decodingPause = 1000}}});
    const auto device = registered();
    for (int i = 0; i < 5; ++i) { // each counts as 200 ms at least
        EXPECT_EQ(transcribe(device, "no audio").status, 415);
    }
    const auto refused = transcribe(device, tone());
    EXPECT_EQ(refused.error(), "too_many_requests");
    EXPECT_NEAR(std::stoi(refused.retryAfter), 200, 30);
    EXPECT_EQ(transcribe(registered(), tone()).status, 200);
}

TEST_F(ApiTest, TellsTheEngineTheLanguageAndThePromptThatAreInForm)
{
    start();
    const auto device = registered() + std::string(multipartHeader);
    const auto field = [](const std::string &name, const std::string &value) {
        return "--b\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + value + "\r\n";
    };
    const auto status = [&](const std::string &fields) {
        return connect().send("POST", "/v1/transcribe", device, fields + multipart(tone())).status;
    };
    EXPECT_EQ(status(field("language", "zh-Hant") + field("prompt", "Quillo,\nGrüße") + field("other", "x")), 200);
    EXPECT_EQ(engine->hints, "zh-Hant|Quillo,\nGrüße");
    for (const auto &fields :
         {field("language", "german"), field("language", "de "), field("prompt", std::string(1001, 'x')),
          field("prompt", "\x1b"), field("prompt", "\xff"), field("language", "de") + field("language", "en")}) {
        EXPECT_EQ(status(fields), 400) << fields;
    }
    EXPECT_EQ(engine->runs, 1);
}

TEST_F(ApiTest, MakesRoomForNewConnectionsByClosingIdleOnes)
{
    start({.server = {.connections = 1}});
    auto idle = connect();
    EXPECT_EQ(idle.send("GET", "/v1/balance").status, 401);
    EXPECT_EQ(connect().send("GET", "/v1/balance").status, 401);
    EXPECT_TRUE(idle.isClosedByServer());
}

TEST_F(ApiTest, ServesAnAddressSoManyConnectionsUnlessItIsAProxys)
{
    start({.server = {.connectionsPerAddress = 1}});
    auto first = connect();
    EXPECT_EQ(first.send("GET", "/v1/balance").status, 401);
    EXPECT_TRUE(connect().isClosedByServer());
    RunningServer proxied({.connectionsPerAddress = 1, .trustedProxies = {*Network::parse("127.0.0.0/8")}});
    proxied.start(*api);
    HttpClient one(proxied.port());
    HttpClient other(proxied.port());
    EXPECT_EQ(one.send("GET", "/v1/balance").status + other.send("GET", "/v1/balance").status, 802);
}

TEST_F(ApiTest, TellsHealthAndMetricsWhereNothingElseIs)
{
    start({.api = {.isMonitoredApart = true}});
    RunningServer monitor;
    monitor.start(api->monitor());
    for (const auto *const path : {"/readyz", "/healthz", "/metrics"}) {
        EXPECT_NE(HttpClient(monitor.port()).send("GET", path).status, 404) << path;
    }
    EXPECT_EQ(HttpClient(monitor.port()).send("GET", "/v1/balance").status, 404);
    EXPECT_EQ(connect().send("GET", "/metrics").status, 404);
}

TEST_F(ApiTest, NamesWhatIsWrongWithARequest)
{
    start({.api = {.transcription = {.largestUpload = 100'000},
                   .checkout = {.provider = CheckoutOptions::Provider::None}}});
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
        {"OPTIONS", "/elsewhere", "", "", 404, "not_found"},
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

TEST_F(ApiTest, KeepsAConnectionUntilARequestIsMalformed)
{
    start({.freeTokens = 10, .server = {.linger = 20ms}});
    const auto device = registered();
    auto client = connect();
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(), 10);
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(), 10);
    client.write("POST /v1/devices HTTP/1.1\r\nHost: test\r\nExpect: 100-continue\r\nContent-Length: 20\r\n\r\n");
    EXPECT_EQ(client.receive().status, 100);
    EXPECT_EQ(client.sendRaw(R"({"platform":"macos"})").status, 200);
    client.write("HEAD /v1/balance HTTP/1.1\r\nHost: test\r\n" + device + "\r\n");
    EXPECT_EQ(client.receive(true).status, 200);
    EXPECT_EQ(client.sendRaw("GET HTTP://test/v1/balance?x HTTP/1.1\r\nHost: test\r\n" + device + "\r\n").balance(),
              10);
    for (const auto *const target : {"*", "/v1/balance"}) {
        EXPECT_EQ(client.send("OPTIONS", target).status, 204) << target;
    }
    EXPECT_EQ(client.send("GET", "/v1/balance", device).balance(), 10);
    EXPECT_EQ(client.sendRaw("nonsense\r\n\r\n").error(), "bad_request");
    EXPECT_TRUE(client.isClosedByServer());
    for (const std::string header :
         {"Transfer-Encoding: gzip", "Transfer-Encoding: gzip, chunked", "Transfer-Encoding: identity",
          "Transfer-Encoding: gzip\r\nContent-Length: 2", "Content-Length: 2\r\nTransfer-Encoding: chunked",
          "Transfer-Encoding: chunked\r\nContent-Length: 2", "Transfer-Encoding: chunked\r\nTransfer-Encoding: chunked",
          "Content-Length: 2\r\nContent-Length: 3", "Content-Length: 2\r\nContent-Length: 2", "Content-Length: -2",
          "Host: other", "Host: test"}) {
        auto other = connect();
        const auto answer = other.sendRaw("POST /v1/devices HTTP/1.1\r\nHost: test\r\n" + header + "\r\n\r\n");
        EXPECT_EQ(answer.error(), "bad_request") << header;
        EXPECT_TRUE(other.isClosedByServer()) << header;
    }
    for (const std::string head :
         {"1.1\r\n", "1.1\r\nHost: a b\r\n", "1.1\r\nHost: user@test\r\n", "1.0\r\nTransfer-Encoding: chunked\r\n"}) {
        EXPECT_EQ(connect().sendRaw("GET /v1/balance HTTP/" + head + "\r\n").error(), "bad_request") << head;
    }
    EXPECT_EQ(connect().sendRaw("GET /v1/balance HTTP/1.0\r\n\r\n").status, 401); // needs no host
    EXPECT_EQ(connect().sendRaw("GET /v1/balance HTTP/1.1\r\nHost: [::1]:80\r\n\r\n").status, 401);
}

TEST_F(ApiTest, ClosesConnectionsThatAreIdleOrTooSlow)
{
    start({.server = {.idle = 20ms, .header = 20ms, .stall = 1h, .body = 20ms}});
    for (const auto *const beginning :
         {"", "GET /v1/bal", "POST /v1/devices HTTP/1.1\r\nHost: test\r\nContent-Length: 9\r\n\r\n{"}) {
        auto client = connect();
        client.write(beginning);
        EXPECT_TRUE(client.isClosedByServer()) << beginning;
    }
    server->stop();
    EXPECT_THAT(log, testing::ContainsRegex(R"("-".*"status":408(.|\n)*"POST".*"status":408)"));
}

TEST_P(ApiDatabaseTest, LimitsTheRegistrationsOfAnAddressBehindATrustedProxyToo)
{
    start({.api = {.registrationsPerHour = 2},
           .server = {.trustedProxies = {*Network::parse("127.0.0.1"), *Network::parse("10.0.0.0/8")}}});
    const auto attempt = [&](const std::string &forwarded) {
        return connect().send("POST", "/v1/devices", "X-Forwarded-For: " + forwarded + "\r\n", R"({"platform":"x"})");
    };
    EXPECT_EQ(attempt("192.0.2.9, 192.0.2.1").status, 200);
    EXPECT_EQ(attempt("192.0.2.8, 10.0.0.1\r\nX-Forwarded-For: 192.0.2.1, 10.0.0.1").status, 200);
    const auto refused = attempt("192.0.2.7\r\nX-Forwarded-For: 192.0.2.1"); // what the client claims does not count
    EXPECT_EQ(refused.status, 429);
    EXPECT_EQ(refused.error(), "too_many_registrations");
    EXPECT_THAT(std::stoi(refused.retryAfter), testing::AllOf(testing::Le(1800), testing::Gt(1700)));
    EXPECT_EQ(connect() // nor what follows a chunked body, which proxies pass on
                  .sendRaw("POST /v1/devices HTTP/1.1\r\nHost: test\r\nX-Forwarded-For: 192.0.2.1\r\n"
                           "Transfer-Encoding: chunked\r\n\r\n10\r\n{\"platform\":\"x\"}\r\n0\r\n"
                           "X-Forwarded-For: 192.0.2.40\r\n\r\n")
                  .status,
              429);
    EXPECT_EQ(attempt("192.0.2.2").status, 200);
    EXPECT_EQ(attempt("2001:db8::1").status, 200);
    EXPECT_EQ(attempt("2001:db8::2").status, 200);
    EXPECT_EQ(attempt("2001:db8::3").status, 429);
    EXPECT_EQ(attempt("2001:db8:0:1::1").status, 200);
}

TEST_F(ApiTest, TellsTheOperatorEnoughAndNoSecret)
{
    start();
    const auto device = registered();
    auto client = connect(); // whose next request is read when all of this one has been dealt with
    client.sendRaw(upload(device, tone()));
    const auto url = connect().send("POST", "/v1/checkout/link", device).json()[u"url"_s].toString().toStdString();
    const auto link = url.substr(server->url().size());
    connect().send("GET", link);
    EXPECT_EQ(connect().send("GET", "/healthz").body, R"({"database":"ok","engine":"ok","status":"ok"})");
    const auto metrics = client.send("GET", "/metrics").body;
    client.close();
    server->stop(); // so that the log is complete
    EXPECT_THAT(metrics, testing::HasSubstr(R"(route="/v1/transcribe",status="200"} 1)"));
    EXPECT_THAT(metrics, testing::HasSubstr("quillo_tokens_charged_total 2"));
    EXPECT_THAT(log, testing::HasSubstr(R"("address":"127.0.0.1","delivered":true,"method":"POST")"));
    EXPECT_THAT(log, testing::HasSubstr(R"("route":"/checkout/*")"));
    const auto credential = device.substr(device.find("Bearer ") + 7);
    EXPECT_THAT(
        log, testing::ContainsRegex("\"device\":\"" + credential.substr(0, 22) + "\".*\"seconds\":2,.*\"tokens\":2"));
    for (const auto &secret : {credential.substr(23, 43), std::string("hello"), link.substr(10)}) {
        EXPECT_THAT(log + metrics, testing::Not(testing::HasSubstr(secret)));
    }
}

TEST_P(ApiDatabaseTest, TellsThatItsDatabaseHangs)
{
    start({.api = {.databaseCheck = 20ms}});
    while (connect().send("GET", "/healthz").status != 200) { // while the engine is being made ready
        std::this_thread::yield();
    }
    const auto connections = GetParam() == DatabaseKind::Sqlite ? 1 : 4;
    std::latch entered(connections);
    std::latch released(1);
    const auto hang = [&](Store &) {
        entered.count_down();
        released.wait();
        return true;
    };
    for (int i = 0; i < connections; ++i) {
        net::co_spawn(waiting, store->run(hang), net::detached);
    }
    entered.wait();
    for (const auto *const path : {"/healthz", "/readyz"}) {
        const auto answer = connect().send("GET", path);
        EXPECT_EQ(answer.status, 503);
        EXPECT_EQ(answer.json()[u"database"_s], u"failed"_s);
    }
    released.count_down();
    waiting.join();
}

TEST_P(ApiDatabaseTest, FinishesTheRunningRequestsAndRefusesTheOthersWhenItStops)
{
    start({.freeTokens = 10, .api = {.transcription = {.atOncePerDevice = 0}}});
    const auto device = registered();
    auto idle = connect();
    EXPECT_EQ(idle.send("GET", "/v1/balance", device).status, 200);
    auto beginning = connect();
    beginning.write("GET /v1/b");
    std::latch entered(3);
    engine->together = &entered;
    auto running = std::async(std::launch::async, [&] { return transcribe(device, tone()).status; });
    auto second = connect();
    second.write(upload(device, tone()));
    while (engine->runs < 2) {
        std::this_thread::yield();
    }
    auto queued = connect(); // the engine takes two at a time
    queued.write(upload(device, tone()));
    while (transcriber->placesTaken() < 3) {
        std::this_thread::yield();
    }
    auto uploading = connect();
    uploading.write("POST /v1/transcribe HTTP/1.1\r\nHost: test\r\nContent-Length: 99\r\n" + device + "\r\n--b");
    auto stopped = std::async(std::launch::async, [&] { server->stop([&] { transcriber->stop(); }); });
    EXPECT_TRUE(idle.isClosedByServer());
    EXPECT_EQ(queued.receive().error(), "engine_busy");
    EXPECT_EQ(uploading.receive().error(), "server_busy");
    queued.close();
    uploading.close();
    EXPECT_GE(beginning.sendRaw("alance HTTP/1.1\r\nHost: test\r\n" + device + "\r\n").balance(), 6);
    beginning.close();
    entered.arrive_and_wait();
    EXPECT_EQ(running.get(), 200);
    EXPECT_EQ(second.receive().status, 200);
    second.close();
    stopped.get();
}
