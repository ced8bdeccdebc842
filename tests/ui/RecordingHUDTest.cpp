// SPDX-License-Identifier: MIT
#include "ui/hud/RecordingHUD.h"

#include "FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class RecordingHUDTest : public ::testing::Test {
protected:
    FakePlatform fake;
    PanelRecord panel;
    int panelsMade = 0;
    RecordingHUD hud{fake.clock, fake.screens, [this](HUDModel &) {
                         ++panelsMade;
                         return std::make_unique<FakeStatusPanel>(panel);
                     }};
};

} // namespace

TEST_F(RecordingHUDTest, NoticesHideByThemselvesAndTheRestStays)
{
    struct Row {
        RecordingHUD::Phase phase;
        std::optional<std::chrono::milliseconds> hidesAfter;
        bool isClickable;
    };
    for (const Row &row :
         {Row{HUDPhase::Message{u"m"_s, true}, 2500ms, false}, Row{HUDPhase::Group{u"g"_s}, 2500ms, false},
          Row{HUDPhase::OutOfTokens{}, 8000ms, true}, Row{HUDPhase::Recording{}, std::nullopt, false},
          Row{HUDPhase::Transcribing{}, std::nullopt, false}}) {
        hud.show(row.phase);
        EXPECT_EQ(hud.model().phase(), row.phase);
        EXPECT_EQ(panel.ignoresMouse, !row.isClickable);
        fake.clock.advance(row.hidesAfter.value_or(900s) - 1ms);
        EXPECT_TRUE(panel.isVisible);
        fake.clock.advance(1ms);
        EXPECT_EQ(panel.isVisible, !row.hidesAfter.has_value());
    }
    EXPECT_EQ(panelsMade, 1);
}

TEST_F(RecordingHUDTest, ALaterPhaseOutlivesAnEarlierNotice)
{
    hud.show(HUDPhase::Message{u"m"_s});
    fake.clock.advance(1s);
    hud.show(HUDPhase::Recording{});
    fake.clock.advance(10s);
    EXPECT_TRUE(panel.isVisible);
}

TEST_F(RecordingHUDTest, HidingEmptiesTheMeterAndKeepsThePhase)
{
    hud.hide();
    hud.show(HUDPhase::Recording{true});
    hud.model().setLevel(0.7F);
    hud.hide();
    EXPECT_FALSE(panel.isVisible);
    EXPECT_EQ(hud.model().level(), 0);
    EXPECT_TRUE(hud.model().handsFree());
}

TEST_F(RecordingHUDTest, StandsAboveTheBottomOfTheScreenWithThePointer)
{
    fake.screens.all = {{QRectF(0, 0, 1000, 800), QRectF(0, 0, 1000, 760)},
                        {QRectF(1000, 200, 500, 400), QRectF(1050, 200, 450, 400)}};
    fake.screens.pointer = {1200, 300};
    hud.show(HUDPhase::Recording{});
    EXPECT_EQ(panel.origin, QPointF(1050 + 225 - 140, 600 - 48 - 56));

    fake.screens.pointer = {-5, -5}; // on no screen: the main one
    hud.show(HUDPhase::Recording{});
    EXPECT_EQ(panel.origin, QPointF(500 - 140, 760 - 48 - 56));

    fake.screens.all.clear();
    hud.show(HUDPhase::Recording{});
    EXPECT_EQ(panel.origin, QPointF(500 - 140, 760 - 48 - 56));
}
