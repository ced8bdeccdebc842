// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>

/// Average power of sound between two readings. Not thread-safe.
class LevelMeter {
public:
    /// What silence reads, in decibels.
    static constexpr float floor = -160;

    void add(std::span<const float> samples);

    /// Root mean square of the samples added since the last reading, in decibels of full scale: 0 for a full-scale
    /// square wave, -3 for a full-scale sine. Without samples in between, the last reading holds.
    float read();

private:
    double m_squares = 0;
    size_t m_count = 0;
    float m_reading = floor;
};
