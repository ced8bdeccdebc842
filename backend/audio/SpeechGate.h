// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>

/// Whether a recording (mono, `speechRate`) may hold a word: it is loud enough somewhere, for long enough, and its
/// loudness changes as that of speech does and that of a fan, hum or hiss does not. Speech models invent words for
/// silence and noise, so what does not pass is not given to them.
class SpeechGate {
public:
    /// The next samples of the recording.
    void add(std::span<const int16_t> samples);

    bool mayHoldSpeech() const;

private:
    static constexpr size_t frameLength = 320; // 20 ms
    static constexpr int binsPerDecibel = 4;
    static constexpr int mostDecibels = 100; // above one step of the sample's smallest unit

    void endFrame();
    double levelAbove(int frames) const;

    // Of the frame that has begun.
    size_t m_count = 0;
    double m_sum = 0;
    double m_squares = 0;
    double m_treble = 0; ///< squares of the differences between neighbours

    double m_previous = 0;
    int m_loudFrames = 0;
    int m_frames = 0;
    /// How many frames had which level of treble.
    std::array<int, static_cast<size_t>(binsPerDecibel *mostDecibels)> m_levels{};
};
