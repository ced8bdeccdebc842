// SPDX-License-Identifier: MIT
#include "audio/SpeechGate.h"

#include <algorithm>
#include <cmath>

namespace {

// -50 dBFS: some 10 dB above the noise floor of a laptop's microphone, some 15 dB below a voice that speaks softly.
constexpr double loudness = 32768 * 0.00316;
// 100 ms in all: shorter than the shortest word, longer than a key's click.
constexpr int framesNeeded = 5;
// Decibels between the quietest twentieth of the frames and the loudest `framesNeeded`. White, pink and brown noise and
// hum stay below 3, people's recorded sentences reach 36 and more, and 12 in noise that is 9 dB weaker than the voice.
constexpr double leastChange = 4;

} // namespace

void SpeechGate::add(std::span<const int16_t> samples)
{
    for (const auto sample : samples) {
        const auto value = static_cast<double>(sample);
        m_sum += value;
        m_squares += value * value;
        // Without the low frequencies, in which steady noise changes as slowly as speech.
        m_treble += (value - m_previous) * (value - m_previous);
        m_previous = value;
        if (++m_count == frameLength) {
            endFrame();
        }
    }
}

void SpeechGate::endFrame()
{
    // Without the mean, so that a microphone's constant offset is no sound.
    const auto mean = m_sum / frameLength;
    const auto rootMeanSquare = std::sqrt(std::max(0.0, m_squares / frameLength - mean * mean));
    m_loudFrames += rootMeanSquare > loudness ? 1 : 0;
    const auto decibels = 10 * std::log10(1 + m_treble / frameLength);
    const auto bin = std::min(static_cast<size_t>(decibels * binsPerDecibel), m_levels.size() - 1);
    ++m_levels[bin];
    ++m_frames;
    m_count = 0;
    m_sum = m_squares = m_treble = 0;
}

/// The level that `frames` of them are below.
double SpeechGate::levelAbove(int frames) const
{
    size_t bin = 0;
    while (bin + 1 < m_levels.size() && (frames -= m_levels[bin]) >= 0) {
        ++bin;
    }
    return static_cast<double>(bin) / binsPerDecibel;
}

bool SpeechGate::mayHoldSpeech() const
{
    return m_loudFrames >= framesNeeded &&
           levelAbove(m_frames - framesNeeded) - levelAbove(m_frames / 20) >= leastChange;
}
