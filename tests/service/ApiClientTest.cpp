// SPDX-License-Identifier: MIT
#include "service/ApiClient.h"

#include "FakePlatform.h"
#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/HttpServer.h"
#include "support/Printing.h"

#include "service/AIConsent.h"

#include <QRegularExpression>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Ending = HttpServer::Response::Ending;

const QPair<QString, QString> credentialItem{u"app.quillo.Quillo"_s, u"apiDeviceCredential"_s};

const auto unavailable = u"The service is unavailable right now. Please try again later."_s;
const auto networkError = u"Network error. Please check your connection."_s;
const auto somethingWrong = u"Something went wrong. Please try again."_s;

class ApiClientTest : public ::testing::Test {
protected:
    ApiClientTest()
    {
        fake.preferences.setString(u"apiURL"_s, server.url());
        consent.grant();
        server.onRequest = [this](const HttpServer::Request &request) {
            if (request.path == "/v1/devices") {
                return HttpServer::Response{201, registration};
            }
            return reply;
        };
    }

    /// A client with the preferences as they are now.
    ApiClient client(std::chrono::milliseconds timeout = ApiClient::requestTimeout)
    {
        return ApiClient(fake.preferences, fake.packagedInfo, fake.secrets, consent, fake.clock, timeout);
    }

    template <typename T> static std::optional<ApiError> errorOf(QCoro::Task<T> task)
    {
        try {
            resultOf(std::move(task));
            return std::nullopt;
        } catch (const ApiError &error) {
            return error;
        }
    }

    void expectError(const std::optional<ApiError> &error, const QString &code, const QString &message, int status)
    {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->code(), code);
        EXPECT_EQ(error->localizedDescription(), message);
        EXPECT_EQ(error->status(), status);
    }

    QString recording(const QByteArray &bytes)
    {
        QString path = fake.files.temporaryFolder() + u"/dictation ü.m4a"_s;
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return path;
    }

    FakePlatform fake;
    HttpServer server;
    AIConsent consent{fake.preferences, fake.clock};
    QByteArray registration = R"({"deviceId":"dev","secret":"s3cret"})";
    HttpServer::Response reply{200, R"({"balance":7})"};
};

} // namespace

TEST_F(ApiClientTest, TheFirstRequestRegistersTheDeviceAndKeepsItsCredential)
{
    registration = R"({"deviceId":"dev","secret":"s3cret","freeGrantMissed":true})";
    auto api = client();
    EXPECT_EQ(resultOf(api.balance()).balance, 7);
    EXPECT_FALSE(resultOf(api.balance()).unmetered);
    EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer dev.s3cret");

    ASSERT_EQ(server.requests().size(), 3);
    const auto &registering = server.requests().at(0);
    EXPECT_EQ(registering.method, "POST");
    EXPECT_EQ(registering.body, R"({"platform":"macos"})");
    EXPECT_EQ(registering.headers.value("content-type"), "application/json");
    EXPECT_FALSE(registering.headers.contains("authorization"));
    const auto &asking = server.requests().at(1);
    EXPECT_EQ(asking.method, "GET");
    EXPECT_EQ(asking.path, "/v1/balance");
    EXPECT_EQ(asking.headers.value("authorization"), "Bearer dev.s3cret");
    EXPECT_FALSE(asking.headers.contains("content-type"));
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.s3cret");
    EXPECT_TRUE(fake.preferences.boolean(u"freeGrantMissed"_s));

    resultOf(client().balance());
    EXPECT_EQ(server.count("/v1/devices"), 1);
}

TEST_F(ApiClientTest, TheBaseUrlIsThePreferenceElseThePackagedValue)
{
    struct Row {
        std::optional<QString> preference;
        std::optional<QString> packaged;
        bool isConfigured;
    };
    const QString url = server.url();
    for (const Row &row : {Row{url + u"///"_s, std::nullopt, true}, Row{std::nullopt, u"//"_s + url, true},
                           Row{url, u"http://127.0.0.1:1"_s, true}, Row{QString(), url, false},
                           Row{std::nullopt, std::nullopt, false}, Row{u"http://[broken"_s, url, false}}) {
        fake.preferences.remove(u"apiURL"_s);
        fake.packagedInfo.values.clear();
        if (row.preference) {
            fake.preferences.setString(u"apiURL"_s, *row.preference);
        }
        if (row.packaged) {
            fake.packagedInfo.values.insert(u"QLOApiURL"_s, *row.packaged);
        }
        auto api = client();
        if (row.isConfigured) {
            EXPECT_EQ(resultOf(api.balance()).balance, 7);
            EXPECT_EQ(server.requests().last().path, "/v1/balance");
        } else {
            const auto before = server.requests().size();
            expectError(errorOf(api.balance()), u"not_configured"_s, unavailable, 0);
            EXPECT_EQ(server.requests().size(), before);
        }
    }
}

TEST_F(ApiClientTest, AddressesAreTakenAsTheyAreWritten)
{
    fake.secrets.items.insert(credentialItem, "known.device");
    fake.preferences.setString(u"apiURL"_s, server.url() + u"/a%2Fb%20c/"_s);
    resultOf(client().balance());
    EXPECT_EQ(server.requests().last().path, "/a%2Fb%20c/v1/balance");
    fake.preferences.setString(u"apiURL"_s, u"localhost"_s + server.url().sliced(16)); // without "http://"
    expectError(errorOf(client().balance()), u"network"_s, networkError, 0);
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(ApiClientTest, EveryReplyThatIsNoSuccessBecomesItsError)
{
    struct Row {
        HttpServer::Response reply;
        QString code;
        QString message;
        int status;
    };
    const Row table[] = {
        {{402, R"({"error":"insufficient_tokens","message":"Buy some."})"},
         u"insufficient_tokens"_s,
         u"Buy some."_s,
         402},
        {{402, R"({"error":"insufficient_tokens"})"}, u"insufficient_tokens"_s, somethingWrong, 402},
        {{400, R"({"message":"No such thing."})"}, u"server_error"_s, u"No such thing."_s, 400},
        {{503, R"({"error":null,"message":null})"}, u"server_error"_s, somethingWrong, 503},
        {{500, R"({"error":5,"message":"typed wrong"})"}, u"server_error"_s, somethingWrong, 500},
        {{502, "<html>Bad gateway</html>"}, u"server_error"_s, somethingWrong, 502},
        {{302, "", Ending::Complete, "Location: /v1/devices\r\n"}, u"server_error"_s, somethingWrong, 302},
        {{200, "{}"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":"7"})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7.5})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":1e300})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":9223372036854775808})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":null})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7,"unmetered":1})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7})", Ending::CutInBody}, u"network"_s, networkError, 0},
        {{200, "", Ending::CloseWithoutReply}, u"network"_s, networkError, 0},
        {{200, QByteArray(qsizetype{16} * 1024 * 1024, ' ') + R"({"balance":7})"}, u"network"_s, networkError, 0},
    };
    for (const Row &row : table) {
        SCOPED_TRACE(row.reply.body.left(60).toStdString());
        reply = row.reply;
        auto api = client();
        expectError(errorOf(api.balance()), row.code, row.message, row.status);
    }
    EXPECT_EQ(server.count("/v1/devices"), 1);
}

TEST_F(ApiClientTest, RepliesDecodeTheirOptionalMembers)
{
    struct Row {
        QByteArray json;
        int64_t balance;
        bool isUnmetered;
    };
    for (const Row &row : {Row{R"({"balance":-3,"unmetered":true,"more":[]})", -3, true},
                           Row{R"({"balance":-3.0,"unmetered":null})", -3, false},
                           Row{R"({"balance":9223372036854775807})", std::numeric_limits<int64_t>::max(), false},
                           Row{R"({"balance":-9223372036854775808})", std::numeric_limits<int64_t>::min(), false}}) {
        reply.body = row.json;
        const Balance balance = resultOf(client().balance());
        EXPECT_EQ(balance.balance, row.balance);
        EXPECT_EQ(balance.unmetered, row.isUnmetered);
    }
    const auto asked = server.requests().last().headers.value("accept-encoding");
    EXPECT_EQ(asked, "gzip");
    reply.headers = "Content-Encoding: gzip\r\n";
    reply.body = QByteArray::fromBase64("H4sIAAAAAAACA6tWSkrMScxLTlWyMjSqBQBJDcKXDgAAAA==");
    EXPECT_EQ(resultOf(client().balance()).balance, 12);
    reply.headers.clear();
    reply.body = R"({"url":"https://pay.example/link?a=b c"})";
    EXPECT_EQ(resultOf(client().checkoutLink()).toEncoded(), "https://pay.example/link?a=b%20c");
    EXPECT_EQ(server.requests().last().method, "POST");
    EXPECT_EQ(server.requests().last().body, "");
    EXPECT_FALSE(server.requests().last().headers.contains("content-type"));
    for (const auto *json : {R"({"url":""})", R"({"url":"http://[broken"})", R"({"url":5})"}) {
        reply.body = json;
        expectError(errorOf(client().checkoutLink()), u"server_error"_s, somethingWrong, 200);
    }
}

TEST_F(ApiClientTest, ADeviceThatIsNoLongerKnownRegistersAnewOnce)
{
    fake.secrets.items.insert(credentialItem, "old.credential");
    fake.preferences.setBoolean(u"freeGrantMissed"_s, true);
    server.onRequest = [this](const HttpServer::Request &request) {
        if (request.path == "/v1/devices") {
            return HttpServer::Response{200, registration};
        }
        return request.headers.value("authorization") == "Bearer dev.s3cret"
                   ? HttpServer::Response{200, R"({"balance":1})"}
                   : HttpServer::Response{401, "", Ending::Complete, "WWW-Authenticate: Bearer\r\n"};
    };
    EXPECT_EQ(resultOf(client().balance()).balance, 1);
    EXPECT_EQ(server.count("/v1/balance"), 2);
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.s3cret");
    EXPECT_FALSE(fake.preferences.boolean(u"freeGrantMissed"_s));

    server.onRequest = [](const HttpServer::Request &request) {
        return request.path == "/v1/devices" ? HttpServer::Response{200, R"({"deviceId":"d","secret":"s"})"}
                                             : HttpServer::Response{401, R"({"error":"no","message":"Who are you?"})"};
    };
    expectError(errorOf(client().balance()), u"no"_s, u"Who are you?"_s, 401);
    EXPECT_EQ(server.count("/v1/balance"), 4) << "a second refusal is final";
}

TEST_F(ApiClientTest, TwoRequestsThatAreRefusedAtOnceRegisterOnce)
{
    fake.secrets.items.insert(credentialItem, "old.credential");
    server.onRequest = [this](const HttpServer::Request &request) {
        const bool isRefused = request.headers.value("authorization") == "Bearer old.credential";
        return request.path == "/v1/devices" ? HttpServer::Response{200, registration}
                                             : HttpServer::Response{isRefused ? 401 : 200, R"({"balance":1})"};
    };
    auto api = client();
    auto one = api.balance();
    auto other = api.balance();
    EXPECT_EQ(resultOf(std::move(one)).balance, 1);
    EXPECT_EQ(resultOf(std::move(other)).balance, 1);
    EXPECT_EQ(server.count("/v1/devices"), 1);
}

TEST_F(ApiClientTest, AFailedRegistrationIsTheErrorAndStoresNothing)
{
    struct Row {
        HttpServer::Response reply;
        QString code;
        int status;
    };
    for (const Row &row :
         {Row{{200, R"({"deviceId":"dev"})"}, u"server_error"_s, 200}, Row{{401, R"({"error":"no"})"}, u"no"_s, 401},
          Row{{200, R"({"deviceId":"d","secret":"s","freeGrantMissed":"yes"})"}, u"server_error"_s, 200}}) {
        const auto before = server.requests().size();
        server.onRequest = [&](const HttpServer::Request &) { return row.reply; };
        const auto error = errorOf(client().balance());
        ASSERT_TRUE(error);
        EXPECT_EQ(error->code(), row.code);
        EXPECT_EQ(error->status(), row.status);
        EXPECT_EQ(server.requests().size(), before + 1);
        EXPECT_TRUE(fake.secrets.items.isEmpty());
    }
}

TEST_F(ApiClientTest, WhileTheKeychainIsOutOfReachARegistrationInMemoryServes)
{
    fake.secrets.isAvailable = false;
    auto api = client();
    resultOf(api.balance());
    resultOf(api.balance());
    EXPECT_EQ(server.count("/v1/devices"), 1);
    expectError(errorOf(api.checkoutLink()), u"keyring_locked"_s, u"Unlock the keyring first"_s, 0);
    EXPECT_EQ(server.count("/v1/checkout/link"), 0) << "what is bought for it would be lost";
    fake.secrets.isUnlockedByUser = true;
    reply.body = R"({"url":"https://pay.example/"})";
    EXPECT_EQ(resultOf(api.checkoutLink()), QUrl(u"https://pay.example/"_s));
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.s3cret") << "kept as soon as it can be";

    reply.body = R"({"balance":7})";
    fake.secrets.items.insert(credentialItem, "\xff\xfe");
    registration = R"({"deviceId":"dev","secret":"another"})";
    resultOf(client().balance());
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.another");
}

TEST_F(ApiClientTest, OfTwoDevicesTheOneWithMoreTokensStays)
{
    struct Row {
        HttpServer::Response own;
        HttpServer::Response stored;
        QByteArray expected;
        QByteArray kept;
    };
    const HttpServer::Response poor{200, R"({"balance":1})"};
    const HttpServer::Response rich{200, R"({"balance":2})"};
    const HttpServer::Response unknown{401, "{}"};
    const HttpServer::Response broken{500, "{}"};
    for (const Row &row :
         {Row{poor, rich, "stored.device", "stored.device"}, Row{poor, poor, "stored.device", "stored.device"},
          Row{rich, poor, "dev.s3cret", "dev.s3cret"}, Row{rich, unknown, "dev.s3cret", "dev.s3cret"},
          Row{unknown, poor, "stored.device", "stored.device"}, Row{rich, broken, "dev.s3cret", "stored.device"}}) {
        SCOPED_TRACE((row.own.body + row.stored.body).toStdString());
        fake.secrets.items.insert(credentialItem, "stored.device");
        fake.secrets.isAvailable = false;
        auto api = client();
        resultOf(api.balance());
        server.onRequest = [&](const HttpServer::Request &request) {
            return request.path == "/v1/devices"      ? HttpServer::Response{200, registration}
                   : request.path == "/v1/transcribe" ? reply
                   : request.headers.value("authorization") == "Bearer dev.s3cret" ? row.own
                                                                                   : row.stored;
        };
        fake.secrets.isAvailable = true;
        reply.body = R"({"text":"Hello","balance":7})";
        resultOf(api.transcribe(recording("sound")));
        EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer dev.s3cret") << "doesn't wait";
        static QString log;
        log.clear();
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) { log += line; });
        errorOf(api.balance());
        qInstallMessageHandler(before);
        EXPECT_EQ(log.contains(row.kept == "dev.s3cret" ? u"device stored is"_s : u"device dev is"_s),
                  row.kept == row.expected);
        EXPECT_FALSE(log.contains(u"s3cret") || log.contains(u"stored.device")) << log.toStdString();
        resultOf(api.transcribe(recording("sound")));
        EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer " + row.expected);
        EXPECT_EQ(fake.secrets.items.value(credentialItem), row.kept);
        server.onRequest = [this](const HttpServer::Request &request) {
            return request.path == "/v1/devices" ? HttpServer::Response{200, registration} : reply;
        };
    }
}

TEST_F(ApiClientTest, ADictationWaitsForTheKeychainForThreeSeconds)
{
    fake.secrets.items.insert(credentialItem, "stored.device");
    fake.secrets.answer = std::make_shared<QPromise<void>>();
    fake.secrets.answer->start();
    reply.body = R"({"text":"Hello","balance":7})";
    auto api = client();
    const QString path = recording("sound");
    auto dictation = api.transcribe(path);
    ASSERT_TRUE(await([&] { return fake.clock.pending() == 1; }));
    fake.clock.advance(2999ms);
    QCoreApplication::processEvents();
    EXPECT_EQ(fake.clock.pending(), 1);
    EXPECT_EQ(server.requests().size(), 0);
    fake.clock.advance(1ms);
    EXPECT_EQ(resultOf(std::move(dictation)).text, u"Hello"_s);
    EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer dev.s3cret");

    // It answers at last, with a device that has as many tokens.
    fake.secrets.answer->finish();
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") == 2; }));
    resultOf(api.transcribe(path));
    EXPECT_EQ(resultOf(api.balance()).balance, 7);
    EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer stored.device");
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "stored.device");
}

TEST_F(ApiClientTest, RequestsDoNotWaitForEachOther)
{
    fake.secrets.items.insert(credentialItem, "known.device");
    reply.body = R"({"text":"Hello","balance":7})";
    server.onRequest = [this](const HttpServer::Request &request) {
        HttpServer::Response answer = reply;
        answer.ending = request.path == "/v1/balance" ? Ending::NeverReply : Ending::Complete;
        return answer;
    };
    auto api = client();
    std::vector<QCoro::Task<Balance>> unanswered;
    unanswered.reserve(12);
    for (int i = 0; i < 12; ++i) {
        unanswered.push_back(api.balance());
    }
    ASSERT_TRUE(await([&] { return server.count("/v1/balance") == 12; }));
    EXPECT_EQ(resultOf(api.transcribe(recording("sound"))).text, u"Hello"_s);
}

TEST_F(ApiClientTest, AServerThatCannotProveItsNameIsNotSpokenTo)
{
    const QString folder = fake.files.temporaryFolder();
    run(u"openssl"_s, {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-keyout"_s,
                       folder + u"/key.pem"_s, u"-out"_s, folder + u"/own.pem"_s, u"-subj"_s, u"/CN=127.0.0.1"_s,
                       u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s});
    ChildProcess tls(u"openssl"_s, {u"s_server"_s, u"-www"_s, u"-accept"_s, u"127.0.0.1:0"_s, u"-cert"_s,
                                    folder + u"/own.pem"_s, u"-key"_s, folder + u"/key.pem"_s});
    QString line;
    while (!line.startsWith(u"ACCEPT ")) {
        line = tls.readLine();
    }
    fake.secrets.items.insert(credentialItem, "known.device");
    fake.preferences.setString(u"apiURL"_s, u"https://"_s + line.sliced(7));
    expectError(errorOf(client().balance()), u"network"_s, networkError, 0);
}

TEST_F(ApiClientTest, ARequestWithoutProgressFails)
{
    resultOf(client().balance()); // registered, so that the time-out is the one of the request below
    reply.ending = Ending::NeverReply;
    expectError(errorOf(client(50ms).balance()), u"network"_s, networkError, 0);
    // It is no limit for the whole: this takes longer, and there is progress.
    reply.ending = Ending::ByteByByte;
    EXPECT_EQ(resultOf(client(1s).balance()).balance, 7);
    fake.preferences.setString(u"apiURL"_s, u"http://127.0.0.1:1"_s);
    expectError(errorOf(client().balance()), u"network"_s, networkError, 0);
}

TEST_F(ApiClientTest, ARecordingIsUploadedByteForByteUnderAFreshBoundary)
{
    reply.body = R"({"text":" Hello. ","balance":12})";
    QByteArray sound("\0\r\n--qlo-\xff", 11);
    sound.append(QByteArray(300'000, 'x'));
    const QString path = recording(sound);
    auto api = client();
    QSet<QByteArray> boundaries;
    for (int i = 0; i < 2; ++i) {
        const Transcript transcript = resultOf(api.transcribe(path));
        EXPECT_EQ(transcript.text, u" Hello. "_s);
        EXPECT_EQ(transcript.balance, 12);
        const auto &request = server.requests().last();
        const QByteArray type = request.headers.value("content-type");
        ASSERT_TRUE(type.startsWith("multipart/form-data; boundary="));
        const QByteArray boundary = type.sliced(30);
        static const QRegularExpression form(u"^qlo-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s);
        EXPECT_TRUE(form.match(QString::fromLatin1(boundary)).hasMatch());
        EXPECT_TRUE(request.body ==
                    "--" + boundary +
                        "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"dictation ü.m4a\"" +
                        "\r\nContent-Type: audio/mp4\r\n\r\n" + sound + "\r\n--" + boundary + "--\r\n");
        boundaries.insert(boundary);
    }
    EXPECT_EQ(boundaries.size(), 2);
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(ApiClientTest, ARecordingIsNeverSentASecondTimeWhenTheConnectionBreaks)
{
    const QString path = recording("sound");
    auto api = client();
    resultOf(api.balance());
    reply.ending = Ending::CloseWithoutReply;
    expectError(errorOf(api.transcribe(path)), u"network"_s, networkError, 0);
    EXPECT_EQ(server.count("/v1/transcribe"), 1);
}

TEST_F(ApiClientTest, NothingIsReadOrSentWithoutConsentOrRecording)
{
    const QString path = recording("sound");
    for (const char *stored : {R"({"version":2,"grantedAt":1})", "not json", ""}) {
        fake.preferences.setData(u"aiConsent"_s, stored);
        try {
            resultOf(client().transcribe(path));
            FAIL() << "sent";
        } catch (const AIConsentError &error) {
            EXPECT_EQ(error.localizedDescription(),
                      u"Sending to OpenAI needs your permission first. Open Data & AI from the menu bar."_s);
        }
    }
    consent.grant();
    expectError(errorOf(client().transcribe(recording({}))), u"no_audio"_s,
                u"Nothing was recorded. Check microphone access."_s, 0);
    for (const QString &unreadable : {u"/nonexistent.m4a"_s, u"/proc/self/mem"_s}) {
        expectError(errorOf(client().transcribe(unreadable)), u"no_audio"_s, u"Couldn't read the recording."_s, 0);
    }
    EXPECT_TRUE(server.requests().isEmpty());

    reply.body = R"({"balance":7})";
    expectError(errorOf(client().transcribe(path)), u"no_audio"_s, u"Nothing was recorded. Check microphone access."_s,
                0);
    expectError(errorOf(client().transcribe(recording("sound"))), u"server_error"_s, somethingWrong, 200);
}
