// SPDX-License-Identifier: MIT
#include "service/ApiClient.h"

#include "FakePlatform.h"
#include "support/Await.h"
#include "support/HttpServer.h"
#include "support/Printing.h"

#include "service/AIConsent.h"

#include <QRegularExpression>
#include <QTemporaryFile>

#include <gtest/gtest.h>

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
        return ApiClient(fake.preferences, fake.packagedInfo, fake.secrets, consent, timeout);
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

TEST_F(ApiClientTest, EveryRequestNamesTheSameDevice)
{
    auto api = client();
    for (int i = 0; i < 4; ++i) {
        resultOf(api.balance());
        EXPECT_EQ(server.requests().last().headers.value("authorization"), "Bearer dev.s3cret");
    }
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
        {{404, ""}, u"server_error"_s, somethingWrong, 404},
        {{302, "", Ending::Complete, "Location: /v1/devices\r\n"}, u"server_error"_s, somethingWrong, 302},
        {{200, "{}"}, u"server_error"_s, somethingWrong, 200},
        {{200, "not json"}, u"server_error"_s, somethingWrong, 200},
        {{204, ""}, u"server_error"_s, somethingWrong, 204},
        {{200, R"({"balance":"7"})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7.5})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":1e300})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":null})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7,"unmetered":1})"}, u"server_error"_s, somethingWrong, 200},
        {{200, R"({"balance":7})", Ending::CutInBody}, u"network"_s, networkError, 0},
        {{200, "", Ending::CloseWithoutReply}, u"network"_s, networkError, 0},
    };
    for (const Row &row : table) {
        SCOPED_TRACE(row.reply.body.toStdString());
        reply = row.reply;
        auto api = client();
        expectError(errorOf(api.balance()), row.code, row.message, row.status);
    }
    EXPECT_EQ(server.count("/v1/devices"), 1);
}

TEST_F(ApiClientTest, RepliesDecodeTheirOptionalMembers)
{
    for (const auto &[json, unmetered] : {std::pair{R"({"balance":-3,"unmetered":true,"more":[]})", true},
                                          {R"({"balance":-3.0,"unmetered":null})", false}}) {
        reply.body = json;
        const Balance balance = resultOf(client().balance());
        EXPECT_EQ(balance.balance, -3);
        EXPECT_EQ(balance.unmetered, unmetered);
    }
    reply.body = R"({"url":"https://pay.example/link?a=b"})";
    EXPECT_EQ(resultOf(client().checkoutLink()), QUrl(u"https://pay.example/link?a=b"_s));
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
}

TEST_F(ApiClientTest, ASecondRefusalIsFinal)
{
    reply = {401, R"({"error":"unauthorized","message":"Who are you?"})"};
    expectError(errorOf(client().balance()), u"unauthorized"_s, u"Who are you?"_s, 401);
    EXPECT_EQ(server.count("/v1/balance"), 2);
    EXPECT_EQ(server.count("/v1/devices"), 2);
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

TEST_F(ApiClientTest, WithoutASecretStoreTheCredentialServesFromMemory)
{
    fake.secrets.isAvailable = false;
    auto api = client();
    resultOf(api.balance());
    resultOf(api.balance());
    EXPECT_EQ(server.count("/v1/devices"), 1);
    fake.secrets.isAvailable = true;
    fake.secrets.items.insert(credentialItem, "\xff\xfe");
    resultOf(client().balance());
    EXPECT_EQ(server.count("/v1/devices"), 2);
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.s3cret");
}

TEST_F(ApiClientTest, ALockedStoreLosesNothing)
{
    const auto device = [this] { return server.requests().last().headers.value("authorization"); };
    fake.secrets.isAvailable = false;
    auto fresh = client();
    resultOf(fresh.balance());
    fake.secrets.isAvailable = true;
    resultOf(fresh.balance());
    EXPECT_EQ(fake.secrets.items.value(credentialItem), "dev.s3cret") << "kept as soon as it can be";

    fake.secrets.items.insert(credentialItem, "earlier.device");
    fake.secrets.isAvailable = false;
    auto known = client();
    resultOf(known.balance());
    EXPECT_EQ(device(), "Bearer dev.s3cret");
    fake.secrets.isAvailable = true;
    reply.body = R"({"text":"Hello","balance":7})";
    resultOf(known.transcribe(recording("sound")));
    EXPECT_EQ(device(), "Bearer dev.s3cret") << "the text does not wait for the store";
    resultOf(known.balance());
    EXPECT_EQ(device(), "Bearer earlier.device");

    // Unlocked while the device registers, or while a request of it is refused.
    for (const QByteArray path : {"/v1/devices", "/v1/balance"}) {
        fake.secrets.isAvailable = false;
        server.onRequest = [&](const HttpServer::Request &request) {
            fake.secrets.isAvailable = fake.secrets.isAvailable || request.path == path;
            const bool isRefused = request.headers.value("authorization") == "Bearer dev.s3cret";
            return request.path == "/v1/devices" ? HttpServer::Response{201, registration}
                                                 : HttpServer::Response{isRefused ? 401 : 200, R"({"balance":7})"};
        };
        auto api = client();
        EXPECT_EQ(resultOf(api.balance()).balance, 7) << path.constData();
        EXPECT_EQ(device(), "Bearer earlier.device") << path.constData();
        EXPECT_EQ(fake.secrets.items.value(credentialItem), "earlier.device") << path.constData();
    }
}

TEST_F(ApiClientTest, ARequestWithoutProgressFails)
{
    resultOf(client().balance()); // registered, so that the time-out is the one of the request below
    reply.ending = Ending::NeverReply;
    expectError(errorOf(client(50ms).balance()), u"network"_s, networkError, 0);
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
    expectError(errorOf(client().transcribe(u"/nonexistent.m4a"_s)), u"no_audio"_s, u"Couldn't read the recording."_s,
                0);
    EXPECT_TRUE(server.requests().isEmpty());
}
