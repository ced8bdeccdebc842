// SPDX-License-Identifier: MIT
#include "Sound.h"

#include "platform/audio/LevelMeter.h"

#include <gmock/gmock.h>

namespace {

struct Level {
    const char *sound;
    std::vector<float> samples;
    float decibels;
};

class LevelMeterTest : public testing::TestWithParam<Level> {};

TEST_P(LevelMeterTest, ReadsTheRootMeanSquareInDecibelsOfFullScale)
{
    LevelMeter meter;
    meter.add(GetParam().samples);
    EXPECT_NEAR(meter.read(), GetParam().decibels, 0.02);
}

INSTANTIATE_TEST_SUITE_P(Sounds, LevelMeterTest,
                         testing::Values(Level{"FullScaleSquare", {1, -1, 1, -1}, 0},
                                         Level{"HalfScaleSine", tone(1000, 44100, 1), -9.03F},
                                         Level{"Faint", {1e-9F, -1e-9F}, -160}, Level{"Silence", {0, 0}, -160},
                                         Level{"Nothing", {}, -160}),
                         [](const auto &test) { return test.param.sound; });

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
