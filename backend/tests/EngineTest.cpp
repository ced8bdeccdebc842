// SPDX-License-Identifier: MIT
#include "engine/CommandEngine.h"
#include "engine/FairQueue.h"
#include "engine/OpenAiEngine.h"
#include "engine/PocketSphinxEngine.h"
#include "engine/WyomingEngine.h"

#include "audio/AudioDecoder.h"
#include "support/Audio.h"
#include "support/ChildProcess.h"
#include "support/RunningServer.h"

#include <boost/asio/detached.hpp>
#include <boost/asio/post.hpp>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

namespace {

/// Answers with `replies` in turn, with the last one for ever, and keeps the last request.
class Upstream : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 1'000'000; }
    net::awaitable<Reply> handle(const Request &request) override
    {
        last = request;
        co_return replies[std::min(count++, replies.size() - 1)];
    }

    Request last;
    size_t count = 0;
    std::vector<Reply> replies{1};
};

Reply reply(unsigned status, std::string body = {}, std::string retryAfter = {})
{
    Reply reply;
    reply.status = status;
    reply.body = std::move(body);
    if (!retryAfter.empty()) {
        reply.headers = {{"Retry-After", retryAfter}};
    }
    return reply;
}

class OpenAiEngineTest : public testing::Test {
protected:
    void SetUp() override
    {
        qputenv("no_proxy", "127.0.0.1");
        server.start(upstream);
    }

    QString transcribe() const
    {
        auto asked = options;
        asked.baseUrls = {server.url() + "/v1"};
        OpenAiEngine engine(asked);
        return engine.transcribe({"the file", 60s});
    }

    std::string failure()
    {
        try {
            transcribe();
        } catch (const EngineError &error) {
            retryAfter = error.retryAfter();
            return error.what();
        }
        ADD_FAILURE() << "it did not fail";
        return {};
    }

    OpenAiOptions options{.model = "whisper-1", .key = "sk-secret", .firstDelay = 1ms};
    std::optional<std::chrono::seconds> retryAfter;
    Upstream upstream;
    RunningServer server;
};

} // namespace

TEST_F(OpenAiEngineTest, SendsTheFileAndWhatIsConfigured)
{
    upstream.replies = {reply(200, R"({"text":"Grüße."})")};
    EXPECT_EQ(transcribe(), QStringLiteral("Grüße."));
    EXPECT_EQ(upstream.last.method + " " + upstream.last.path, "POST /v1/audio/transcriptions");
    EXPECT_EQ(upstream.last.authorization, "Bearer sk-secret");
    EXPECT_THAT(upstream.last.contentType, testing::StartsWith("multipart/form-data; boundary="));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"file\"; filename=\"recording.m4a\"\r\n"
                                              "Content-Type: audio/mp4\r\n\r\nthe file\r\n"));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"model\"\r\n\r\nwhisper-1\r\n"));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"response_format\"\r\n\r\njson\r\n"));
    EXPECT_THAT(upstream.last.body, Not(testing::AnyOf(HasSubstr("language"), HasSubstr("prompt"))));

    options.key.clear();
    options.language = "de";
    options.prompt = "Quillo";
    transcribe(); // what the request tells comes first
    EXPECT_EQ(upstream.last.authorization, "");
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"language\"\r\n\r\nde\r\n"));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"prompt\"\r\n\r\nQuillo\r\n"));
}

TEST_F(OpenAiEngineTest, TriesAgainWhatIsTemporaryAndHeedsTheDelay)
{
    upstream.replies = {reply(429), reply(503), reply(200, R"({"text":"at last"})")};
    EXPECT_EQ(transcribe(), QStringLiteral("at last"));
    EXPECT_EQ(upstream.count, 3);

    upstream.replies = {reply(500)};
    upstream.count = 0;
    EXPECT_THAT(failure(), HasSubstr("500"));
    EXPECT_EQ(upstream.count, 3);
    EXPECT_EQ(retryAfter, std::nullopt);

    upstream.replies = {reply(429, {}, "111"), reply(200, R"({"text":"too early"})")};
    upstream.count = 0;
    EXPECT_THAT(failure(), HasSubstr("429")); // the delay is longer than the time left
    EXPECT_EQ(upstream.count, 1);
    EXPECT_EQ(retryAfter, 111s);
}

TEST_F(OpenAiEngineTest, FailsWithoutTellingTheKey)
{
    upstream.replies = {reply(401, R"({"error":{"message":"Incorrect key: sk-secret"},"text":"x"})")};
    EXPECT_THAT(failure(), testing::AllOf(HasSubstr("401"), Not(HasSubstr("sk-secret"))));
    EXPECT_EQ(upstream.count, 1);
    for (const auto *const body : {"", "[]", "{}", R"({"text":7})"}) {
        upstream.replies = {reply(200, body)};
        EXPECT_THAT(failure(), HasSubstr("no text"));
    }
    upstream.replies = {reply(302)};
    upstream.replies[0].headers = {{"Location", server.url() + "/elsewhere"}};
    EXPECT_THAT(failure(), HasSubstr("302"));
    EXPECT_EQ(upstream.last.path, "/v1/audio/transcriptions");
    server.stop();
    EXPECT_THAT(failure(), HasSubstr("can't be used"));
}

TEST_F(OpenAiEngineTest, AsksTheNextServerWhenOneFailsAndLeavesThatOneAlone)
{
    Upstream second;
    second.replies = {reply(200, R"({"text":"second"})")};
    RunningServer secondServer;
    secondServer.start(second);
    options.baseUrls = {server.url(), secondServer.url()};
    OpenAiEngine engine(options);
    const auto ask = [&] { return engine.transcribe({.file = "the file", .longest = 60s}); };
    upstream.replies = {reply(500)};
    EXPECT_EQ(ask(), u"second"_s);
    EXPECT_EQ(ask(), u"second"_s);
    EXPECT_EQ(upstream.count, 1);
    upstream.replies = {reply(200, R"({"text":"first"})")};
    second.replies = {reply(401)};
    EXPECT_EQ(ask(), u"first"_s); // which is still better than none
}

TEST_F(OpenAiEngineTest, GivesUpOnAServerThatDoesNotAnswer)
{
    net::io_context io;
    net::ip::tcp::acceptor silent(io, {net::ip::address_v4::loopback(), 0}); // connections wait in its queue for ever
    options.timeout = 50ms;
    options.baseUrls = {"http://127.0.0.1:" + std::to_string(silent.local_endpoint().port())};
    OpenAiEngine engine(options);
    EXPECT_THROW(engine.transcribe({"the file", 60s}), EngineError);
}

TEST(CommandEngineTest, RunsAProgramWithTheRecordingAndItsLimits)
{
    const auto ask = [](const QStringList &command) {
        CommandEngine engine({.command = command, .language = "en", .memory = 1 << 30, .processorTime = 7});
        return engine.transcribe({.file = tone(), .longest = 60s, .prompt = "{file} $(x)"}).trimmed();
    };
    const auto script = [](const char *text) { return QStringList{u"sh"_s, u"-c"_s, QString::fromUtf8(text)}; };
    EXPECT_EQ(ask(script("head -c 4")), u"RIFF"_s);
    EXPECT_EQ(ask(script("head -c 4 \"$0\"") + QStringList{u"{file}"_s}), u"RIFF"_s);
    EXPECT_EQ(ask({u"ffprobe"_s, u"-v"_s, u"error"_s, u"-show_entries"_s, u"stream=codec_name,sample_rate,channels"_s,
                   u"-of"_s, u"csv=p=0"_s, u"{file}"_s}),
              u"pcm_s16le,16000,1"_s);
    EXPECT_EQ(ask({u"echo"_s, u"-n"_s, u"{language}"_s, u"{prompt}"_s}), u"en {file} $(x)"_s);
    EXPECT_EQ(ask(script("echo '{\"text\":\"Grüße\"}'")), u"Grüße"_s);
    EXPECT_EQ(ask(script("ulimit -v; ulimit -t; echo $USER")), u"1048576\n7"_s);
    for (const auto &command :
         {script("exit 3"), script("kill $$"), script("echo {}"), QStringList{u"/nonexistent"_s}}) {
        EXPECT_THROW(ask(command), EngineError) << command.join(u' ').toStdString();
    }
}

TEST(CommandEngineTest, KillsAllThatItHasStartedWhenNobodyWaitsAnyMore)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(u"fifo"_s);
    ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    const auto fifo = ::open(path.toLocal8Bit().constData(), O_RDONLY | O_NONBLOCK);
    pollfd started{fifo, POLLIN, 0};
    CommandEngine engine({.command = {u"sh"_s, u"-c"_s, u"exec 3>\"$0\"; echo >&3; sleep 1000 & wait"_s, path}});
    const auto wanted = [&] { return ::poll(&started, 1, 0) == 0; };
    EXPECT_THROW(engine.transcribe({.file = tone(), .longest = 60s, .wanted = wanted}), EngineError);
    ::fcntl(fifo, F_SETFL, 0);
    std::array<char, 9> bytes{};
    EXPECT_EQ(::read(fifo, bytes.data(), bytes.size()), 1);
    EXPECT_EQ(::read(fifo, bytes.data(), bytes.size()), 0); // which it would not end with while one of them lives
    ::close(fifo);
}

TEST(WyomingEngineTest, SendsTheSamplesAndReadsTheTranscript)
{
    ChildProcess server(u"python3"_s, {QStringLiteral(QUILLO_BACKEND_TESTS "/wyoming.py")});
    const auto ask = [port = server.readLine().toStdString()](const std::string &language) {
        return WyomingEngine({.host = "127.0.0.1", .port = port, .timeout = 20s})
            .transcribe({.file = tone(), .longest = 60s, .language = language});
    };
    const auto bytes = QString::number(2 * decodeAudio(tone(), {60s}).size());
    EXPECT_EQ(ask("de"), u"de "_s + bytes);
    EXPECT_EQ(ask(""), u"any "_s + bytes);
    EXPECT_THROW(ask("xx"), EngineError);
    server.terminate();
    EXPECT_THROW(ask("de"), EngineError);
}

TEST(FairQueueTest, ServesOwnersInTurnUntilItIsStopped)
{
    net::io_context io;
    FairQueue queue(1);
    std::string served;
    const auto use = [&](std::string owner) -> net::awaitable<void> {
        const auto turn = co_await queue.enter(owner);
        served += turn ? owner : "-";
        if (served.size() == 6) {
            queue.stop();
        }
        co_await net::post(net::use_awaitable);
    };
    for (const auto *const owner : {"a", "a", "a", "b", "c", "b", "c", "d"}) {
        net::co_spawn(io, use(owner), net::detached);
    }
    io.run();
    EXPECT_EQ(served, "aabcda--");
}

TEST(PocketSphinxEngineTest, UnderstandsASpokenCommandAfterAac)
{
    const auto file = spokenCommand();
    PocketSphinxEngine engine(PocketSphinxEngine::defaultModelFolder());
    testing::internal::CaptureStderr();
    engine.prepare();
    EXPECT_EQ(engine.transcribe({file, 60s}), QStringLiteral("go forward ten meters"));
    EXPECT_EQ(engine.transcribe({file, 60s}), QStringLiteral("go forward ten meters"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), ""); // the library's log would tell what was said
}

TEST(PocketSphinxEngineTest, SaysWhenItsModelIsMissing)
{
    PocketSphinxEngine engine(QStringLiteral("/nonexistent"));
    EXPECT_THROW(engine.prepare(), EngineError);
    EXPECT_THROW(engine.transcribe({{}, 60s}), EngineError);
}
