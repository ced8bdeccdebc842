// SPDX-License-Identifier: MIT
#include "support/Audio.h"
#include "audio/AudioDecoder.h"
#include "audio/SpeechGate.h"

#include <QtEndian>
#include <sys/resource.h>

#include <cmath>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

AudioError::Kind failure(const std::string &file, const DecodingLimits &limits = {60s})
{
    try {
        decodeAudio(file, limits);
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
    const auto samples = decodeAudio(tone(), {60s});
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

TEST(AudioDecoderTest, TakesLittleMemoryForASmallFileWithAHugeIndex)
{
    // The sample sizes' box claims 24 million samples of a byte, the chunks' box that they are all in the first chunk.
    constexpr std::string_view count("\1\x6e\x36\0", 4);
    auto file = tone();
    const auto sizes = file.find("stsz");
    const auto chunks = file.find("stsc");
    ASSERT_TRUE(sizes != std::string::npos && chunks != std::string::npos);
    file.replace(sizes + 8, 4, std::string_view("\0\0\0\1", 4));
    file.replace(sizes + 12, 4, count);
    file.replace(chunks + 16, 4, count);
    const auto peak = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss; // in KiB
    };
    const auto before = peak();
    EXPECT_EQ(failure(file), AudioError::Kind::Unsupported);
    EXPECT_LT(peak() - before, 100 * 1024);
}

TEST(AudioDecoderTest, StopsAtTheLimits)
{
    EXPECT_EQ(failure(tone(), {1s}), AudioError::Kind::TooLong);
    EXPECT_EQ(failure(tone(), {.longest = 60s, .wanted = [asked = 0]() mutable { return ++asked < 9; }}),
              AudioError::Kind::Stopped);
    EXPECT_EQ(failure(tone(), {.longest = 60s, .time = 0ms}), AudioError::Kind::Unsupported); // not even opened
}

TEST(AudioDecoderTest, DecodesNoBytesAgainAndAgain)
{
    // 20,000 samples of 40 bytes, all of them the first bytes of the media, which are no AAC packet.
    constexpr uint32_t count = 20'000;
    const auto number = [](uint32_t value) {
        return std::string{static_cast<char>(value >> 24), static_cast<char>(value >> 16),
                           static_cast<char>(value >> 8), static_cast<char>(value)};
    };
    auto file = tone();
    file.replace(file.find("edts"), 4, "free"); // which would leave out what is beyond the tone's duration
    const auto place = [&](const char *box) { return file.find(box) + 4; };
    const auto at = [&](size_t offset) { return qFromBigEndian<quint32>(file.data() + offset); };
    file.replace(place("stsz") + 4, 8, number(40) + number(count));
    file.replace(place("stsc") + 8, 12, number(1) + number(1) + number(1));
    const auto offsets = place("stco");
    const auto entries = std::string(file, offsets + 8, 4);
    const auto present = 4 * at(offsets + 4);
    std::string table = number(count);
    for (uint32_t i = 0; i < count; ++i) {
        table += entries;
    }
    const auto added = static_cast<uint32_t>(table.size()) - 4 - present;
    file.replace(offsets + 4, 4 + present, table);
    for (const auto *const box : {"moov", "trak", "mdia", "minf", "stbl", "stco"}) {
        file.replace(place(box) - 8, 4, number(at(place(box) - 8) + added));
    }
    EXPECT_EQ(failure(file), AudioError::Kind::TooCostly);
}

TEST(SpeechGateTest, HoldsBackSilenceClicksAndSteadyNoise)
{
    const auto passes = [](const Samples &samples) {
        SpeechGate gate;
        gate.add(samples);
        return gate.mayHoldSpeech();
    };
    EXPECT_FALSE(passes({}));
    EXPECT_FALSE(passes(decodeAudio(silence(), {60s})));
    EXPECT_FALSE(passes(waves(60, speechRate)));         // a microphone's noise and its constant offset
    EXPECT_FALSE(passes(waves(20000, speechRate / 20))); // a click of 50 ms
    for (const auto *const noise :
         {"anoisesrc=color=white:duration=5:amplitude=0.3:seed=1",
          "anoisesrc=color=pink:duration=5:amplitude=0.3:seed=1",
          "anoisesrc=color=brown:duration=5:amplitude=0.3:seed=1", "sine=frequency=50:duration=3"}) {
        EXPECT_FALSE(passes(decodeAudio(recordingOf(generated(noise)), {60s}))) << noise;
    }
    auto soft = waves(10, speechRate);
    const auto voice = waves(600, speechRate / 2);
    soft.insert(soft.end(), voice.begin(), voice.end());
    EXPECT_TRUE(passes(soft));
    EXPECT_TRUE(passes(decodeAudio(spokenCommand(), {60s})));
}
