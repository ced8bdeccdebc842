// SPDX-License-Identifier: MIT
#include "audio/SpeechGate.h"

#include "audio/AudioDecoder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr size_t frameLength = speechRate / 50; // 20 ms
// -50 dBFS: some 10 dB above the noise floor of a laptop's microphone, some 15 dB below a voice that speaks softly.
constexpr double loudness = 32768 * 0.00316;
// 100 ms in all: shorter than the shortest word, longer than a key's click.
constexpr int framesNeeded = 5;

double rootMeanSquare(std::span<const int16_t> frame)
{
    // Without the mean, so that a microphone's constant offset is no sound.
    double sum = 0;
    double squares = 0;
    for (const auto sample : frame) {
        sum += sample;
        squares += static_cast<double>(sample) * sample;
    }
    const auto count = static_cast<double>(frame.size());
    const auto mean = sum / count;
    return std::sqrt(std::max(0.0, squares / count - mean * mean));
}

} // namespace

bool mayHoldSpeech(std::span<const int16_t> samples)
{
    int loud = 0;
    for (; samples.size() >= frameLength; samples = samples.subspan(frameLength)) {
        if (rootMeanSquare(samples.first(frameLength)) > loudness && ++loud == framesNeeded) {
            return true;
        }
    }
    return false;
}
