// SPDX-License-Identifier: MIT
#include "support/Audio.h"
#include "audio/AudioDecoder.h"
#include "audio/SpeechGate.h"

#include <cmath>

using namespace std::chrono_literals;

namespace {

AudioError::Kind failure(const std::string &file, std::chrono::seconds longest = 60s)
{
    try {
        decodeAudio(file, longest);
    } catch (const AudioError &error) {
        return error.kind();
    }
    ADD_FAILURE() << "it was decoded";
    return {};
}

Samples waves(double amplitude, size_t count)
{
    Samples samples(count);
    for (size_t i = 0; i < count; ++i) {
        samples[i] = static_cast<int16_t>(amplitude * std::sin(0.2 * static_cast<double>(i)) + 300);
    }
    return samples;
}

} // namespace

TEST(AudioDecoderTest, KeepsTheDurationAndTheTone)
{
    const auto samples = decodeAudio(tone(), 60s);
    EXPECT_NEAR(static_cast<double>(samples.size()) / speechRate, 1.5, 0.05);
    int crossings = 0;
    for (size_t i = 1; i < speechRate; ++i) {
        crossings += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
    }
    EXPECT_NEAR(crossings, 440, 3);
}

TEST(AudioDecoderTest, RefusesWhatIsNotAacInMpeg4)
{
    EXPECT_EQ(failure({}), AudioError::Kind::Unsupported);
    EXPECT_EQ(failure(std::string(100'000, 'x')), AudioError::Kind::Unsupported);
    EXPECT_EQ(failure(tone().substr(0, tone().size() / 2)), AudioError::Kind::Unsupported); // its index is at the end
    EXPECT_EQ(failure(recordingOf(generated("sine=duration=1"), {QStringLiteral("alac")})),
              AudioError::Kind::Unsupported);
    EXPECT_EQ(failure(recordingOf(generated("sine=duration=1"),
                                  {QStringLiteral("pcm_s16le"), QStringLiteral("-f"), QStringLiteral("wav")})),
              AudioError::Kind::Unsupported);
}

TEST(AudioDecoderTest, StopsAtTheLimit)
{
    EXPECT_EQ(failure(tone(), 1s), AudioError::Kind::TooLong);
}

TEST(SpeechGateTest, HoldsBackSilenceAndClicks)
{
    EXPECT_FALSE(mayHoldSpeech({}));
    EXPECT_FALSE(mayHoldSpeech(decodeAudio(silence(), 60s)));
    EXPECT_FALSE(mayHoldSpeech(waves(60, speechRate)));         // a microphone's noise and its constant offset
    EXPECT_FALSE(mayHoldSpeech(waves(20000, speechRate / 20))); // a click of 50 ms
    EXPECT_TRUE(mayHoldSpeech(waves(600, speechRate / 2)));     // a soft voice
}
