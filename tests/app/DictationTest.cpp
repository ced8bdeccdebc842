// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include "app/menu/MenuBarExtra.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class DictationTest : public AppModelFixture {};

} // namespace

TEST_F(DictationTest, ModesDecideWhatReleaseAndPressDo)
{
    start();
    MenuBarExtra extra(*model, fake.platform);
    const auto expect = [&](const AppModel::State &state, const QString &status, const QString &symbol) {
        QCoreApplication::sendPostedEvents(&extra, QEvent::MetaCall);
        EXPECT_EQ(model->state(), state);
        EXPECT_EQ(model->statusText(), status);
        EXPECT_EQ(fake.statusItem.symbol, symbol);
        EXPECT_EQ(fake.statusItem.menu.first().title, status);
    };
    struct Row {
        TriggerMode mode;
        std::chrono::milliseconds held;
        bool isTap;
        QString status;
    };
    const QString both = u"Hold or tap ⌃⌥ Space to dictate"_s;
    const QString hold = u"Hold ⌃⌥ Space to dictate"_s;
    const QString tap = u"Tap ⌃⌥ Space to dictate"_s;
    for (const Row &row : {Row{TriggerMode::Both, 349ms, true, both}, Row{TriggerMode::Both, 350ms, false, both},
                           Row{TriggerMode::Hold, 1ms, false, hold}, Row{TriggerMode::Hold, 5s, false, hold},
                           Row{TriggerMode::Toggle, 1ms, true, tap}, Row{TriggerMode::Toggle, 5s, true, tap}}) {
        SCOPED_TRACE(row.status.toStdString() + " " + std::to_string(row.held.count()));
        const QString listening = u"Listening… (Esc to cancel)"_s;
        model->setTriggerMode(row.mode);
        expect({}, row.status, u"waveform"_s);
        press();
        const auto startedAt = fake.clock.now();
        press(); // while held: nothing
        expect({Case::Recording, startedAt, false}, listening, u"record.circle.fill"_s);
        EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{false}));
        fake.clock.advance(row.held);
        release();
        if (row.isTap) {
            EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{true}));
            model->handle(ShortcutEvent::Interrupted); // hands-free: nothing
            release();
            expect({Case::Recording, startedAt, true}, listening, u"record.circle.fill"_s);
            press();
        }
        release();
        press(); // while transcribing: nothing
        release();
        expect({Case::Transcribing}, u"Transcribing…"_s, u"ellipsis.circle"_s);
        EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Transcribing{}));
        EXPECT_FALSE(escapeIsGrabbed());
        ASSERT_TRUE(awaitIdle());
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
    ASSERT_TRUE(awaitIdle());
    EXPECT_EQ(model->store().items().first().categoryId, second);
    EXPECT_FALSE(model->groups().activeId());

    model->groups().setActiveId(second);
    speak();
    model->groups().remove(second); // before the reply
    ASSERT_TRUE(awaitIdle());
    EXPECT_FALSE(model->store().items().first().categoryId);
}

TEST_F(DictationTest, TheConnectionIsMadeReadyWhileThePersonSpeaks)
{
    client->prepareConnection(); // without a credential: nothing
    EXPECT_TRUE(server.requests().isEmpty());
    start();
    const int before = server.count("/v1/balance");
    balance = 77;
    fake.clock.advance(5s);
    press();
    EXPECT_TRUE(await([&] { return server.count("/v1/balance") == before + 1; }));
    fake.clock.advance(15s);
    EXPECT_TRUE(await([&] { return server.count("/v1/balance") == before + 2; }));
    release();
    ASSERT_TRUE(awaitIdle());
    EXPECT_EQ(model->balance(), 9);
    fake.clock.advance(1s);
    client->prepareConnection(); // one has just been used
    consent.withdraw();
    fake.clock.advance(1min);
    client->prepareConnection();
    EXPECT_EQ(server.count("/v1/balance"), before + 2);
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
        {{402, R"({"error":"insufficient_tokens","message":"m"})"}, HUDPhase::OutOfTokens{true}, 0},
    };
    for (const Row &row : table) {
        transcript = row.reply;
        if (row.phase == HUDModel::Phase(HUDPhase::OutOfTokens{true})) { // as the next balance request finds out
            fake.preferences.setBoolean(u"freeGrantMissed"_s, true);
            model->refreshBalance();
            ASSERT_TRUE(await([this] { return model->balance() == 10; }));
        }
        dictate();
        EXPECT_EQ(phase(), row.phase);
        EXPECT_EQ(model->balance(), row.balance);
        EXPECT_TRUE(model->store().items().isEmpty());
        EXPECT_TRUE(fake.files.recordings().isEmpty());
    }
}

TEST_F(DictationTest, ATextThatCannotBePastedIsLeftOnTheClipboardOrSaidToBeInTheHistory)
{
    start();
    fake.accessibility.trusted = false;
    dictate();
    EXPECT_EQ(phase(), message(u"Copied — press ⌘V to paste"_s));
    EXPECT_EQ(fake.pasteboard.string(), u"Hello there."_s);
    fake.pasteboard.refuses = true;
    dictate();
    EXPECT_EQ(phase(), error(u"Couldn't paste. The text is in the history."_s));
    EXPECT_EQ(model->store().items().size(), 2);

    fake.pasteboard.refuses = false;
    fake.accessibility.trusted = true;
    fake.files.failsToWrite = true;
    dictate();
    EXPECT_EQ(fake.pasted, QStringList{u"Hello there."_s});
    EXPECT_EQ(phase(), error(u"Kept in memory: the history can't be saved"_s));
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
    ASSERT_TRUE(awaitIdle());
    fake.clock.advance(1s);

    press();
    fake.microphone.current->end();
    fake.clock.advance(0ms);
    EXPECT_EQ(model->state().value, Case::Transcribing);
    ASSERT_TRUE(awaitIdle());
    EXPECT_EQ(model->store().items().size(), 2);

    fake.microphone.seconds = 0.1; // unplugged at once
    press();
    fake.microphone.current->end();
    fake.clock.advance(0ms);
    EXPECT_EQ(phase(), error(u"The microphone was disconnected."_s));
    release();
    model->setTriggerMode(TriggerMode::Hold);
    dictate(); // a slip of the finger
    EXPECT_FALSE(panel.isVisible);
}

TEST_F(DictationTest, TheMeterFollowsTheLevelWhileRecordingAndNothingIsTimedAfterwards)
{
    start();
    const int timersBefore = fake.clock.pending();
    press();
    for (const auto &[power, level] :
         {std::pair{-60.0F, 0.0F}, {-50.0F, 0.0F}, {-25.0F, 0.5F}, {0.0F, 1.0F}, {3.0F, 1.0F}}) {
        fake.microphone.power = power;
        fake.clock.advance(50ms);
        EXPECT_FLOAT_EQ(model->hud().model().level(), level);
    }
    fake.hotKeys.press(KeyCode::escape, 0);
    EXPECT_EQ(fake.clock.pending(), timersBefore + 1); // the notice hides by itself
    fake.clock.advance(2500ms);
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

TEST_F(DictationTest, TheEndOfAPasteHidesNothingThatCameMeanwhile)
{
    model->groups().add(u"Work"_s);
    start();
    const std::pair<std::function<void()>, std::optional<HUDModel::Phase>> table[]{
        {[] {}, std::nullopt},
        {[this] { model->cycleGroup(true); }, HUDPhase::Group{u"Work"_s}},
        {[this] { press(); }, HUDPhase::Recording{false}},
        {[this] {
             press();
             model->dictation().cancel();
         },
         message(u"Cancelled"_s)},
    };
    for (const auto &[meanwhile, expected] : table) {
        fake.pasted.clear();
        speak();
        ASSERT_TRUE(await([this] { return !fake.pasted.isEmpty(); }));
        meanwhile();
        fake.clock.advance(400ms);
        EXPECT_EQ(panel.isVisible, expected.has_value());
        EXPECT_EQ(phase(), expected.value_or(phase()));
        model->dictation().cancel();
        release();
    }
}

TEST_F(DictationTest, TwoAtOnceArriveInOrderAndTheUsersClipboardComesBack)
{
    int number = 0;
    server.onRequest = [&, answer = server.onRequest](const HttpServer::Request &request) {
        const QByteArray text = QByteArray::number(++number);
        return request.path == "/v1/transcribe"
                   ? HttpServer::Response{200, R"({"balance":9,"text":"said )" + text + "\"}"}
                   : answer(request);
    };
    start();
    number = 0;
    fake.pasteboard.setString(u"the user's"_s);
    fake.pasteboard.isSlow = true; // the first waits for what it is to put back
    for (int i = 0; i < 2; ++i) {
        speak();
        ASSERT_TRUE(awaitIdle());
    }
    EXPECT_EQ(fake.pasted, QStringList());
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Transcribing{}));
    fake.pasteboard.answer();
    fake.clock.advance(400ms);
    EXPECT_TRUE(panel.isVisible); // for the second
    fake.clock.advance(400ms);
    EXPECT_EQ(fake.pasted, (QStringList{u"said 1"_s, u"said 2"_s}));
    EXPECT_EQ(fake.pasteboard.string(), u"the user's"_s);
    EXPECT_FALSE(panel.isVisible);
    EXPECT_EQ(model->store().items().size(), 2);
}

TEST_F(DictationTest, AReplyDuringAHoldIsPastedAfterTheRelease)
{
    start();
    speak();
    press(); // too early for the next one
    ASSERT_TRUE(awaitIdle());
    fake.clock.advance(5s);
    EXPECT_EQ(fake.pasted, QStringList());
    release();
    fake.clock.advance(1s);
    EXPECT_EQ(fake.pasted, QStringList{u"Hello there."_s});
}

TEST_F(DictationTest, ANoticeDuringARecordingWaitsForItsEnd)
{
    start();
    fake.workspace.hasPrivacySettings = false;
    press();
    model->permissions().fixAccessibility();
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Recording{false}));
    model->dictation().cancel();
    EXPECT_EQ(phase(), message(u"Cancelled"_s));
    fake.clock.advance(2500ms);
    EXPECT_EQ(phase(), error(u"Run “quillo doctor” to see what is missing"_s));
    fake.clock.advance(2500ms);
    EXPECT_FALSE(panel.isVisible);
}

TEST_F(DictationTest, EndingTheProgramLeavesNoRecordingBehind)
{
    for (const bool isTranscribing : {false, true}) {
        make();
        start();
        isTranscribing ? speakToSilence() : press();
        EXPECT_EQ(fake.files.recordings().size(), 1);
        model.reset();
        EXPECT_TRUE(fake.files.recordings().isEmpty());
    }
}
