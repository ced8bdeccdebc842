// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

/// Mono, signed 16 bit, `speechRate` samples a second.
using Samples = std::vector<int16_t>;

/// The sample rate that speech models are trained for, in Hz.
inline constexpr int speechRate = 16000;

class AudioError : public std::runtime_error {
public:
    enum class Kind {
        Unsupported, ///< not an MPEG-4 file with an AAC track that can be decoded
        TooLong,
        TooCostly, ///< it names the same bytes again and again, or more packets than its time has room for
        Stopped,   ///< nobody wants it any more, or it took too long
    };

    AudioError(Kind kind, const char *reason) : std::runtime_error(reason), m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

using SampleSink = std::function<void(std::span<const int16_t>)>;

/// What one file may take. Its bytes and packets are limited too, to what a recording of `longest` can have.
struct DecodingLimits {
    std::chrono::seconds longest; ///< of its sound
    std::chrono::milliseconds time{30'000};
    /// Asked again and again on the thread that decodes.
    std::function<bool()> wanted = [] { return true; };
};

/// Decodes the first AAC track of an MPEG-4 file held in memory, piece by piece in order; nothing is written anywhere.
/// Returns the number of samples, at least one. Any thread. Throws AudioError as soon as a limit is passed.
size_t decodeAudio(std::string_view file, const DecodingLimits &limits, const SampleSink &sink);

/// The same, all at once.
Samples decodeAudio(std::string_view file, const DecodingLimits &limits);
