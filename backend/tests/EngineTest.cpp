// SPDX-License-Identifier: MIT
#include "engine/FairQueue.h"
#include "engine/OpenAiEngine.h"
#include "engine/PocketSphinxEngine.h"

#include "support/Audio.h"
#include "support/RunningServer.h"

#include <boost/asio/detached.hpp>
#include <boost/asio/post.hpp>
#include <gmock/gmock.h>

using namespace std::chrono_literals;
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
        asked.baseUrl = server.url() + "/v1";
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

TEST_F(OpenAiEngineTest, GivesUpOnAServerThatDoesNotAnswer)
{
    net::io_context io;
    net::ip::tcp::acceptor silent(io, {net::ip::address_v4::loopback(), 0}); // connections wait in its queue for ever
    options.timeout = 50ms;
    options.baseUrl = "http://127.0.0.1:" + std::to_string(silent.local_endpoint().port());
    OpenAiEngine engine(options);
    EXPECT_THROW(engine.transcribe({"the file", 60s}), EngineError);
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
    const auto file =
        recordingOf({QStringLiteral("-f"), QStringLiteral("s16le"), QStringLiteral("-ar"), QStringLiteral("16000"),
                     QStringLiteral("-ac"), QStringLiteral("1"), QStringLiteral("-i"),
                     QStringLiteral("/usr/share/pocketsphinx/test/data/goforward.raw")});
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
