// SPDX-License-Identifier: MIT
#include "engine/OpenAiEngine.h"
#include "engine/PocketSphinxEngine.h"

#include "audio/AudioDecoder.h"
#include "support/Audio.h"
#include "support/RunningServer.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

namespace {

/// Answers every request with `reply`, and keeps the last one.
class Upstream : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 1'000'000; }
    net::awaitable<Reply> handle(const Request &request) override
    {
        last = request;
        co_return reply;
    }

    Request last;
    Reply reply;
};

class OpenAiEngineTest : public testing::Test {
protected:
    void SetUp() override
    {
        qputenv("no_proxy", "127.0.0.1");
        server.start(upstream);
    }

    QString transcribe(const std::string &key = "sk-secret")
    {
        OpenAiEngine engine({server.url() + "/v1", "whisper-1", key});
        return engine.transcribe({.file = "the file", .samples = {}});
    }

    std::string failure()
    {
        try {
            transcribe();
        } catch (const EngineError &error) {
            return error.what();
        }
        ADD_FAILURE() << "it did not fail";
        return {};
    }

    Upstream upstream;
    RunningServer server;
};

} // namespace

TEST_F(OpenAiEngineTest, SendsTheFileTheModelAndTheKey)
{
    upstream.reply.body = R"({"text":"Grüße."})";
    EXPECT_EQ(transcribe(), QStringLiteral("Grüße."));
    EXPECT_EQ(upstream.last.method + " " + upstream.last.path, "POST /v1/audio/transcriptions");
    EXPECT_EQ(upstream.last.authorization, "Bearer sk-secret");
    EXPECT_THAT(upstream.last.contentType, testing::StartsWith("multipart/form-data; boundary="));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"file\"; filename=\"recording.m4a\"\r\n"
                                              "Content-Type: audio/mp4\r\n\r\nthe file\r\n"));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"model\"\r\n\r\nwhisper-1\r\n"));
    EXPECT_THAT(upstream.last.body, HasSubstr("name=\"response_format\"\r\n\r\njson\r\n"));
}

TEST_F(OpenAiEngineTest, SendsNoAuthorizationWithoutAKey)
{
    upstream.reply.body = R"({"text":""})";
    EXPECT_EQ(transcribe({}), QString());
    EXPECT_EQ(upstream.last.authorization, "");
}

TEST_F(OpenAiEngineTest, FailsWithoutTellingTheKey)
{
    upstream.reply.status = 401;
    upstream.reply.body = R"({"error":{"message":"Incorrect key: sk-secret"},"text":"x"})";
    EXPECT_THAT(failure(), testing::AllOf(HasSubstr("401"), Not(HasSubstr("sk-secret"))));
    upstream.reply.status = 200;
    for (const auto *const body : {"", "[]", "{}", R"({"text":7})"}) {
        upstream.reply.body = body;
        EXPECT_THAT(failure(), HasSubstr("no text"));
    }
    upstream.reply.status = 302;
    upstream.reply.headers = {{"Location", server.url() + "/elsewhere"}};
    EXPECT_THAT(failure(), HasSubstr("302"));
    EXPECT_EQ(upstream.last.path, "/v1/audio/transcriptions");
    server.stop();
    EXPECT_THAT(failure(), HasSubstr("can't be used"));
}

TEST(PocketSphinxEngineTest, UnderstandsASpokenCommandAfterAac)
{
    const auto file =
        recordingOf({QStringLiteral("-f"), QStringLiteral("s16le"), QStringLiteral("-ar"), QStringLiteral("16000"),
                     QStringLiteral("-ac"), QStringLiteral("1"), QStringLiteral("-i"),
                     QStringLiteral("/usr/share/pocketsphinx/test/data/goforward.raw")});
    const auto samples = decodeAudio(file, 60s);
    PocketSphinxEngine engine(PocketSphinxEngine::defaultModelFolder());
    testing::internal::CaptureStderr();
    engine.prepare();
    EXPECT_EQ(engine.transcribe({file, samples}), QStringLiteral("go forward ten meters"));
    EXPECT_EQ(engine.transcribe({file, samples}), QStringLiteral("go forward ten meters"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), ""); // the library's log would tell what was said
}

TEST(PocketSphinxEngineTest, SaysWhenItsModelIsMissing)
{
    PocketSphinxEngine engine(QStringLiteral("/nonexistent"));
    EXPECT_THROW(engine.prepare(), EngineError);
    EXPECT_THROW(engine.transcribe({}), EngineError);
}
