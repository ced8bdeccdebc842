// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class DictationTest : public AppModelFixture {};

} // namespace

TEST_F(DictationTest, ModesDecideWhatReleaseAndPressDo)
{
    start();
    struct Row {
        TriggerMode mode;
        std::chrono::milliseconds held;
        Case afterRelease;
    };
    for (const Row &row :
         {Row{TriggerMode::Both, 349ms, Case::Recording}, Row{TriggerMode::Both, 350ms, Case::Transcribing},
          Row{TriggerMode::Both, 5s, Case::Transcribing}, Row{TriggerMode::Hold, 1ms, Case::Transcribing},
          Row{TriggerMode::Hold, 5s, Case::Transcribing}, Row{TriggerMode::Toggle, 1ms, Case::Recording},
          Row{TriggerMode::Toggle, 5s, Case::Recording}}) {
        SCOPED_TRACE(::testing::Message()
                     << info(row.mode).rawValue.toString().toStdString() << " " << row.held.count());
        model->setTriggerMode(row.mode);
        press();
        const auto startedAt = fake.clock.now();
        EXPECT_EQ(model->state(), (AppModel::State{Case::Recording, startedAt, false}));
        EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{false}));
        press(); // while held: nothing
        fake.clock.advance(row.held);
        release();
        EXPECT_EQ(model->state().value, row.afterRelease);
        if (row.afterRelease == Case::Recording) {
            EXPECT_EQ(model->state(), (AppModel::State{Case::Recording, startedAt, true}));
            EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{true}));
            model->handle(ShortcutEvent::Interrupted); // hands-free: nothing
            release();
            EXPECT_EQ(model->state().value, Case::Recording);
            press();
            EXPECT_EQ(model->state().value, Case::Transcribing);
        }
        EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Transcribing{}));
        EXPECT_FALSE(escapeIsGrabbed());
        press(); // while transcribing: nothing
        release();
        EXPECT_EQ(model->state().value, Case::Transcribing);
        ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
        fake.clock.advance(1s);
    }
}

TEST_F(DictationTest, ATranscriptIsKeptPastedAndPaidFor)
{
    const QString group = model->groups().add(u"Work"_s).id;
    model->groups().setActiveId(group);
    start();
    fake.pasteboard.setString(u"earlier"_s);
    QString pasted;
    fake.keyEvents.onPaste = [&] { pasted = fake.pasteboard.read(); };
    dictate();
    EXPECT_EQ(pasted, u"Hello there."_s);
    EXPECT_EQ(fake.pasteboard.string(), u"earlier"_s);
    ASSERT_EQ(model->store().items().size(), 1);
    EXPECT_EQ(model->store().items().first().text, u"Hello there."_s);
    EXPECT_EQ(model->store().items().first().categoryId, group);
    EXPECT_EQ(model->balance(), 9);
    EXPECT_FALSE(panel.isVisible);
    EXPECT_TRUE(fake.files.recordings().isEmpty());
}

TEST_F(DictationTest, TheGroupIsTheOneActiveWhenTheRecordingEnds)
{
    const QString first = model->groups().add(u"First"_s).id;
    const QString second = model->groups().add(u"Second"_s).id;
    model->groups().setActiveId(first);
    start();
    press();
    fake.clock.advance(1s);
    model->cycleGroup(true);
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{false})); // the HUD is left alone
    release();
    model->cycleGroup(true);
    ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
    EXPECT_EQ(model->store().items().first().categoryId, second);
    EXPECT_FALSE(model->groups().activeId());
}

TEST_F(DictationTest, RepliesThatAreNoTextEndWithTheirNotice)
{
    struct Row {
        HttpServer::Response reply;
        HUDModel::Phase phase;
        int64_t balance;
    };
    start();
    const Row table[] = {
        {{200, R"({"text":" \n\t","balance":8})"}, error(u"Didn't catch anything"_s), 8},
        {{402, R"({"error":"insufficient_tokens","message":"m"})"}, HUDPhase::OutOfTokens{false}, 0},
        {{500, ""}, error(u"Something went wrong. Please try again."_s), 0},
        {{400, R"({"error":"x","message":"Too long."})"}, error(u"Too long."_s), 0},
        {{200, "", HttpServer::Response::Ending::CloseWithoutReply},
         error(u"Network error. Please check your connection."_s),
         0},
    };
    for (const Row &row : table) {
        transcript = row.reply;
        dictate();
        EXPECT_EQ(phase(), row.phase);
        EXPECT_EQ(model->balance(), row.balance);
        EXPECT_TRUE(model->store().items().isEmpty());
        EXPECT_TRUE(fake.files.recordings().isEmpty());
    }
}

TEST_F(DictationTest, RunningOutSaysSoWhenTheFreeGrantWasMissed)
{
    start();
    fake.preferences.setBoolean(u"freeGrantMissed"_s, true);
    balance = 11;
    model->refreshBalance();
    ASSERT_TRUE(await([this] { return model->balance() == 11; }));
    transcript = {402, R"({"error":"insufficient_tokens"})"};
    dictate();
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::OutOfTokens{true}));
}

TEST_F(DictationTest, WithoutTrustTheTextIsLeftForPasting)
{
    fake.accessibility.trusted = false;
    start();
    dictate();
    EXPECT_EQ(phase(), message(u"Copied — press ⌘V to paste"_s));
    EXPECT_EQ(fake.pasteboard.string(), u"Hello there."_s);
}

TEST_F(DictationTest, RecordingsThatAreTooShortOrEmptyAreNotSent)
{
    start();
    for (const auto &[seconds, isSent] : {std::pair{0.29, false}, {0.3, true}}) {
        fake.microphone.seconds = seconds;
        dictate();
        EXPECT_EQ(server.count("/v1/transcribe"), isSent ? 1 : 0);
        EXPECT_FALSE(panel.isVisible);
        EXPECT_TRUE(fake.files.recordings().isEmpty());
    }
    fake.microphone.sound.clear();
    dictate();
    EXPECT_EQ(phase(), error(u"Nothing was recorded. Check the microphone."_s));
}

TEST_F(DictationTest, EscapeCancelsAndAnotherKeyCancelsSilently)
{
    start();
    EXPECT_FALSE(escapeIsGrabbed());
    for (const bool handsFree : {false, true}) {
        press();
        if (handsFree) {
            release();
        }
        EXPECT_TRUE(fake.hotKeys.press(KeyCode::escape, 0));
        EXPECT_EQ(model->state().value, Case::Idle);
        EXPECT_EQ(phase(), message(u"Cancelled"_s));
        EXPECT_FALSE(escapeIsGrabbed());
    }
    press();
    model->handle(ShortcutEvent::Interrupted);
    EXPECT_EQ(model->state().value, Case::Idle);
    EXPECT_FALSE(panel.isVisible);
    EXPECT_TRUE(fake.files.recordings().isEmpty());
    EXPECT_EQ(server.count("/v1/transcribe"), 0);
}

TEST_F(DictationTest, TheTimeLimitAndALostMicrophoneFinishWithWhatWasHeard)
{
    start();
    model->setTriggerMode(TriggerMode::Toggle);
    press();
    release();
    fake.clock.advance(900s - 1ms);
    EXPECT_EQ(model->state().value, Case::Recording);
    fake.clock.advance(1ms);
    EXPECT_EQ(model->state().value, Case::Transcribing);
    ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
    fake.clock.advance(1s);

    press();
    fake.microphone.current->end();
    fake.clock.advance(0ms);
    EXPECT_EQ(model->state().value, Case::Transcribing);
    ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
    EXPECT_EQ(model->store().items().size(), 2);
}

TEST_F(DictationTest, TheMeterFollowsTheLevelWhileRecording)
{
    start();
    press();
    for (const auto &[power, level] :
         {std::pair{-60.0F, 0.0F}, {-50.0F, 0.0F}, {-25.0F, 0.5F}, {0.0F, 1.0F}, {3.0F, 1.0F}}) {
        fake.microphone.power = power;
        fake.clock.advance(50ms);
        EXPECT_FLOAT_EQ(model->hud().model().level(), level);
    }
    fake.hotKeys.press(KeyCode::escape, 0);
    fake.clock.advance(10s);
    EXPECT_EQ(model->hud().model().level(), 0);
}

TEST_F(DictationTest, GatesKeepARecordingFromStarting)
{
    start();
    consent.withdraw();
    press();
    EXPECT_EQ(model->state().value, Case::Idle);
    ASSERT_TRUE(disclosure);
    EXPECT_FALSE(disclosure->isReview());
    disclosure->agree();
    EXPECT_EQ(model->state().value, Case::Idle); // the shortcut is to be pressed again

    fake.microphone.authorization = Microphone::Authorization::Denied;
    press();
    EXPECT_EQ(phase(), error(u"Microphone access is off for Quillo"_s));
    EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Microphone);

    fake.microphone.authorization = Microphone::Authorization::NotDetermined;
    press();
    EXPECT_EQ(phase(), message(u"Microphone on — press ⌃⌥ Space to dictate"_s));
    EXPECT_EQ(model->microphone(), AudioRecorder::Permission::Granted);
    EXPECT_EQ(model->state().value, Case::Idle);

    fake.microphone.refusesToRecord = true;
    press();
    EXPECT_EQ(phase(), error(u"Couldn't start the microphone."_s));
    EXPECT_EQ(model->state().value, Case::Idle);
    EXPECT_FALSE(escapeIsGrabbed());
    EXPECT_TRUE(fake.files.recordings().isEmpty());
}

TEST_F(DictationTest, ADictationBegunDuringThePasteKeepsItsHud)
{
    start();
    press();
    fake.clock.advance(1s);
    release();
    ASSERT_TRUE(await([this] { return !fake.keyEvents.posted.empty(); }));
    press();
    fake.clock.advance(400ms);
    EXPECT_TRUE(panel.isVisible);
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{false}));
}

TEST_F(DictationTest, EndingTheProgramLeavesNoRecordingBehind)
{
    start();
    press();
    model.reset();
    EXPECT_TRUE(fake.files.recordings().isEmpty());
}

TEST_F(DictationTest, TheStatusSaysWhatTheShortcutDoes)
{
    start();
    EXPECT_EQ(model->statusText(), u"Hold or tap ⌃⌥ Space to dictate"_s);
    model->setTriggerMode(TriggerMode::Hold);
    EXPECT_EQ(model->statusText(), u"Hold ⌃⌥ Space to dictate"_s);
    model->setTriggerMode(TriggerMode::Toggle);
    EXPECT_EQ(model->statusText(), u"Tap ⌃⌥ Space to dictate"_s);
    press();
    EXPECT_EQ(model->statusText(), u"Listening… (Esc to cancel)"_s);
    release();
    press();
    EXPECT_EQ(model->statusText(), u"Transcribing…"_s);
    ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
}
