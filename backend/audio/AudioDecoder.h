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
    };

    AudioError(Kind kind, const char *reason) : std::runtime_error(reason), m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

using SampleSink = std::function<void(std::span<const int16_t>)>;

/// Decodes the first AAC track of an MPEG-4 file held in memory, piece by piece in order; nothing is written anywhere.
/// Returns the number of samples, at least one. Any thread. Throws AudioError, TooLong as soon as more than `longest`
/// has been decoded.
size_t decodeAudio(std::string_view file, std::chrono::seconds longest, const SampleSink &sink);

/// The same, all at once.
Samples decodeAudio(std::string_view file, std::chrono::seconds longest);
