// SPDX-License-Identifier: MIT
#include "platform/audio/LevelMeter.h"

#include <algorithm>
#include <cmath>

void LevelMeter::add(std::span<const float> samples)
{
    for (const double sample : samples) {
        m_squares += sample * sample;
    }
    m_count += samples.size();
}

float LevelMeter::read()
{
    if (m_count > 0) {
        m_reading = std::max(floor, float(10 * std::log10(m_squares / double(m_count))));
        m_squares = 0;
        m_count = 0;
    }
    return m_reading;
}
