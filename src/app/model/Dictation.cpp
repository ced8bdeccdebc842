// SPDX-License-Identifier: MIT
#include "app/model/Dictation.h"

#include "app/model/Permissions.h"
#include "app/model/Shortcuts.h"
#include "app/model/TokenBalance.h"
#include "app/model/UnsentRecordings.h"
#include "platform/KeyCodes.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "service/ApiClient.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/hud/RecordingHUD.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto meterPeriod = 50ms;

// How often the connection for the upload is used while the user speaks. It is closed when it has been idle for 20 s.
constexpr auto connectionPeriod = 15s;

// The meter is empty at -50 dB and below, full at 0 dB, and linear in between.
constexpr float meterRange = 50;

HUDPhase::Message notice(const QString &text)
{
    return {text, false};
}

HUDPhase::Message problem(const QString &text)
{
    return {text, true};
}

} // namespace

Dictation::Dictation(const Platform &platform, ApiClient &client, AudioRecorder &recorder, Permissions &permissions,
                     const Shortcuts &shortcuts, TokenBalance &balance, UnsentRecordings &unsent,
                     TranscriptionStore &store, const GroupStore &groups, RecordingHUD &hud)
    : m_platform(platform),
      m_client(client),
      m_recorder(recorder),
      m_permissions(permissions),
      m_shortcuts(shortcuts),
      m_balance(balance),
      m_unsent(unsent),
      m_store(store),
      m_groups(groups),
      m_hud(hud),
      m_inserter(platform.pasteboard, platform.keyEvents, platform.accessibility, platform.clock)
{
    connect(&shortcuts, &Shortcuts::dictationEvent, this, &Dictation::handle);
    connect(&shortcuts, &Shortcuts::shortcutsChanged, this, &Dictation::statusTextChanged);
}

Dictation::~Dictation()
{
    const std::optional<Recording> recording = m_recorder.stop();
    if (recording && recording->seconds >= minimumSeconds) {
        m_uploads.insert(recording->path, m_groups.activeId());
    } else if (recording) {
        AudioRecorder::discard(recording->path);
    }
    for (auto upload = m_uploads.cbegin(); upload != m_uploads.cend(); ++upload) {
        if (!m_unsent.keep(upload.key(), upload.value())) {
            AudioRecorder::discard(upload.key());
        }
    }
}

QString Dictation::statusText() const
{
    switch (m_state.value) {
    case State::Case::Recording:
        return tr("Listening… (Esc to cancel)");
    case State::Case::Transcribing:
        return tr("Transcribing…");
    case State::Case::Idle:
        break;
    }
    const TriggerMode mode = m_shortcuts.triggerMode();
    const QString gesture = mode == TriggerMode::Hold     ? tr("Hold %1 to dictate")
                            : mode == TriggerMode::Toggle ? tr("Tap %1 to dictate")
                                                          : tr("Hold or tap %1 to dictate");
    return gesture.arg(m_shortcuts.dictationLabel());
}

void Dictation::handle(ShortcutEvent event)
{
    const bool isRecording = m_state.value == State::Case::Recording;
    switch (event) {
    case ShortcutEvent::Pressed:
        if (m_state.value == State::Case::Idle) {
            begin();
        } else if (isRecording && m_state.handsFree) {
            finish();
        }
        break;
    case ShortcutEvent::Released:
        if (isRecording && !m_state.handsFree) {
            released();
        }
        break;
    case ShortcutEvent::Interrupted:
        if (isRecording && !m_state.handsFree) {
            cancel(true);
        }
        break;
    }
}

void Dictation::toggle()
{
    handle(ShortcutEvent::Pressed);
    if (m_state.value == State::Case::Recording && !m_state.handsFree) {
        continueHandsFree();
    }
}

void Dictation::released()
{
    const TriggerMode mode = m_shortcuts.triggerMode();
    const bool isTap = m_platform.clock.now() - m_state.startedAt < holdThreshold;
    if (mode == TriggerMode::Toggle || (mode == TriggerMode::Both && isTap)) {
        continueHandsFree();
    } else {
        finish();
    }
}

void Dictation::begin()
{
    if (!mayRecord()) {
        return;
    }
    Clock &clock = m_platform.clock;
    m_hasLostMicrophone = false;
    try {
        // A microphone that goes away ends the recording like the time limit does, with what was heard. Deferred: the
        // recorder that reports it is destroyed by what follows.
        m_recorder.start([this, &clock] {
            m_hasLostMicrophone = true;
            m_limitTask = clock.after(0ms, [this] { finish(); });
        });
    } catch (const LocalizedError &error) {
        m_hud.show(problem(error.localizedDescription()));
        return;
    }
    setState({State::Case::Recording, clock.now(), false});
    m_hud.show(HUDPhase::Recording{false});
    m_escapeKey = CarbonHotKey::create(m_platform.hotKeys, KeyCode::escape, 0, [this](bool pressed) {
        if (pressed) {
            cancel();
        }
    });
    m_meterTimer = clock.every(meterPeriod, [this] { tickMeter(); });
    m_limitTask = clock.after(maximumDuration, [this] { finish(); });
    m_client.prepareConnection();
    m_connectionTimer = clock.every(connectionPeriod, [this] { m_client.prepareConnection(); });
}

bool Dictation::mayRecord()
{
    if (!m_permissions.requireConsent()) {
        return false;
    }
    switch (m_recorder.permission()) {
    case AudioRecorder::Permission::Undetermined:
        askForMicrophone();
        return false;
    case AudioRecorder::Permission::Denied:
        m_hud.show(problem(tr("Microphone access is off for Quillo")));
        m_platform.workspace.openPrivacySettings(Workspace::PrivacyPane::Microphone); // the message says the rest
        return false;
    case AudioRecorder::Permission::Granted:
        break;
    }
    return true;
}

QCoro::Task<void> Dictation::askForMicrophone()
{
    if (co_await m_permissions.requestMicrophone()) {
        m_hud.notify(notice(tr("Microphone on — press %1 to dictate").arg(m_shortcuts.dictationLabel())));
    }
}

void Dictation::continueHandsFree()
{
    setState({State::Case::Recording, m_state.startedAt, true});
    m_hud.show(HUDPhase::Recording{true});
}

void Dictation::finish()
{
    if (m_state.value != State::Case::Recording) {
        return;
    }
    endRecording();
    const std::optional<Recording> recording = m_recorder.stop();
    if (!recording || recording->seconds < minimumSeconds) {
        dropRecording(recording);
        return;
    }
    setState({State::Case::Transcribing});
    m_hud.show(HUDPhase::Transcribing{});
    transcribe(recording->path, m_groups.activeId());
}

/// What is too short to say anything is no reason for a message, unless the user did not end it.
void Dictation::dropRecording(const std::optional<Recording> &recording)
{
    if (recording) {
        AudioRecorder::discard(recording->path);
    }
    setState({});
    if (m_hasLostMicrophone) {
        m_hud.show(problem(tr("The microphone was disconnected.")));
    } else if (recording) {
        m_hud.hide();
    } else {
        m_hud.show(problem(tr("Nothing was recorded. Check the microphone.")));
    }
}

void Dictation::cancel(bool silently)
{
    if (m_state.value != State::Case::Recording) {
        return;
    }
    endRecording();
    m_recorder.cancel();
    setState({});
    if (silently) {
        m_hud.hide();
    } else {
        m_hud.show(notice(tr("Cancelled")));
    }
}

void Dictation::endRecording()
{
    m_escapeKey.reset();
    m_meterTimer.reset();
    m_limitTask.reset();
    m_connectionTimer.reset();
}

void Dictation::tickMeter()
{
    float level = 0;
    AudioFileRecorder *recorder = m_recorder.recorder();
    if (recorder != nullptr && recorder->isRecording()) {
        recorder->updateMeters();
        level = std::clamp((recorder->averagePower(0) + meterRange) / meterRange, 0.0F, 1.0F);
    }
    m_hud.model().setLevel(level);
}

QCoro::Task<void> Dictation::transcribe(QString path, std::optional<QString> groupId)
{
    m_uploads.insert(path, groupId);
    std::optional<Transcript> transcript;
    try {
        transcript = co_await m_client.transcribe(path);
    } catch (const LocalizedError &error) {
        setState({});
        showRefusal(error);
        const auto *refusal = dynamic_cast<const ApiError *>(&error);
        if (refusal != nullptr && UnsentRecordings::isWorthAnotherTry(*refusal)) {
            m_unsent.keep(path, groupId);
        }
    }
    if (transcript) {
        m_balance.setBalance(transcript->balance);
        co_await deliver(transcript->text.trimmed(), std::move(groupId));
    }
    m_uploads.remove(path);
    AudioRecorder::discard(path);
}

void Dictation::showRefusal(const LocalizedError &error)
{
    const auto *refusal = dynamic_cast<const ApiError *>(&error);
    if (refusal != nullptr && refusal->code() == u"insufficient_tokens") {
        m_balance.setBalance(0);
        m_hud.show(HUDPhase::OutOfTokens{m_balance.freeGrantMissed()});
    } else {
        m_hud.show(problem(error.localizedDescription()));
    }
}

QCoro::Task<void> Dictation::deliver(QString text, std::optional<QString> groupId)
{
    if (text.isEmpty()) {
        setState({});
        m_hud.show(problem(tr("Didn't catch anything")));
        co_return;
    }
    // The group may have been deleted since.
    m_store.add(text, m_groups.group(groupId) ? groupId : std::nullopt);
    setState({});
    ++m_deliveries;
    const TextInserter::Outcome outcome = co_await m_inserter.insert(text);
    --m_deliveries;
    // Another dictation, begun meanwhile or still being delivered, has the HUD now.
    if (m_state.value == State::Case::Idle && m_deliveries == 0) {
        m_hud.retract(HUDPhase::Transcribing{});
    }
    if (outcome == TextInserter::Outcome::Copied) {
        m_hud.notify(notice(tr("Copied — press ⌘V to paste")));
    } else if (outcome == TextInserter::Outcome::Refused) {
        m_hud.notify(problem(tr("Couldn't paste. The text is in the history.")));
    }
}

void Dictation::setState(const State &state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged();
        Q_EMIT statusTextChanged();
    }
}
