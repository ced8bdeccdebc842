// SPDX-License-Identifier: MIT
#include "audio/WaveFile.h"

#include <QtEndian>

#include <span>

namespace {

constexpr uint16_t bytesPerSample = 2;

template <class Number> void append(std::string &file, Number number)
{
    const auto little = qToLittleEndian(number);
    file.append(reinterpret_cast<const char *>(&little), sizeof little);
}

} // namespace

std::string waveFile(const Samples &samples)
{
    constexpr uint32_t headerAfterSize = 36;
    constexpr uint32_t formatSize = 16;
    constexpr uint16_t pcm = 1;
    constexpr uint16_t channels = 1;
    const auto size = static_cast<uint32_t>(samples.size() * bytesPerSample);
    std::string file = "RIFF";
    append(file, headerAfterSize + size);
    file += "WAVEfmt ";
    append(file, formatSize);
    append(file, pcm);
    append(file, channels);
    append(file, uint32_t{speechRate});
    append(file, uint32_t{speechRate * bytesPerSample});
    append(file, bytesPerSample);
    append(file, uint16_t{bytesPerSample * 8});
    file += "data";
    append(file, size);
    for (const auto sample : samples) {
        append(file, sample);
    }
    return file;
}
