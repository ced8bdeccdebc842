// SPDX-License-Identifier: MIT
#include "Sound.h"

#include "platform/audio/LevelMeter.h"

#include <gmock/gmock.h>

namespace {

TEST(LevelMeter, ReadsTheRootMeanSquareInDecibelsOfFullScale)
{
    const std::pair<std::vector<float>, float> cases[] = {
        {{1, -1, 1, -1}, 0}, {tone(1000, 44100, 1), -9.03F}, {{1e-9F, -1e-9F}, -160}, {{0, 0}, -160}, {{}, -160}};
    for (const auto &[samples, decibels] : cases) {
        LevelMeter meter;
        meter.add(samples);
        EXPECT_NEAR(meter.read(), decibels, 0.02);
    }
}

TEST(LevelMeter, ReadsOnlyTheSoundSinceTheLastReadingAndHoldsWithoutAny)
{
    LevelMeter meter;
    meter.add(std::vector<float>{1, 1});
    EXPECT_FLOAT_EQ(meter.read(), 0);
    EXPECT_FLOAT_EQ(meter.read(), 0);
    meter.add(std::vector<float>{0, 0});
    EXPECT_FLOAT_EQ(meter.read(), LevelMeter::floor);
}

} // namespace
