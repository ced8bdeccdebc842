// SPDX-License-Identifier: MIT
#include "app/model/AppModel.h"

#include "platform/KeyCodes.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "service/AIConsent.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto meterPeriod = 50ms;

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

QString AppModel::statusText() const
{
    switch (m_state.value) {
    case State::Case::Recording:
        return u"Listening… (Esc to cancel)"_s;
    case State::Case::Transcribing:
        return u"Transcribing…"_s;
    case State::Case::Idle:
        break;
    }
    const QString gesture = m_triggerMode == TriggerMode::Hold     ? u"Hold "_s
                            : m_triggerMode == TriggerMode::Toggle ? u"Tap "_s
                                                                   : u"Hold or tap "_s;
    return gesture + m_shortcut.label() + u" to dictate"_s;
}

void AppModel::handle(ShortcutEvent event)
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

void AppModel::toggleDictation()
{
    handle(ShortcutEvent::Pressed);
    if (m_state.value == State::Case::Recording && !m_state.handsFree) {
        continueHandsFree();
    }
}

void AppModel::released()
{
    const bool isTap = m_clock.now() - m_state.startedAt < holdThreshold;
    if (m_triggerMode == TriggerMode::Toggle || (m_triggerMode == TriggerMode::Both && isTap)) {
        continueHandsFree();
    } else {
        finish();
    }
}

void AppModel::begin()
{
    if (!m_consent.isCurrent()) {
        showConsent(false);
        return;
    }
    switch (m_recorder.permission()) {
    case AudioRecorder::Permission::Undetermined:
        askForMicrophone();
        return;
    case AudioRecorder::Permission::Denied:
        m_hud.show(problem(u"Microphone access is off for Quillo"_s));
        m_platform.workspace.openPrivacySettings(Workspace::PrivacyPane::Microphone); // the message says the rest
        return;
    case AudioRecorder::Permission::Granted:
        break;
    }
    try {
        // A microphone that goes away ends the recording like the time limit does, with what was heard. Deferred: the
        // recorder that reports it is destroyed by what follows.
        m_recorder.start([this] { m_limitTask = m_clock.after(0ms, [this] { finish(); }); });
    } catch (const LocalizedError &error) {
        m_hud.show(problem(error.localizedDescription()));
        return;
    }
    setState({State::Case::Recording, m_clock.now(), false});
    m_hud.show(HUDPhase::Recording{false});
    m_escapeKey = CarbonHotKey::create(m_platform.hotKeys, KeyCode::escape, 0, [this](bool pressed) {
        if (pressed) {
            cancel(false);
        }
    });
    m_meterTimer = m_clock.every(meterPeriod, [this] { tickMeter(); });
    m_limitTask = m_clock.after(maximumDuration, [this] { finish(); });
}

QCoro::Task<void> AppModel::askForMicrophone()
{
    const bool isGranted = co_await m_recorder.requestPermission();
    m_microphone = m_recorder.permission();
    Q_EMIT permissionsChanged();
    if (isGranted) {
        m_hud.show(notice(u"Microphone on — press "_s + m_shortcut.label() + u" to dictate"_s));
    }
}

void AppModel::continueHandsFree()
{
    setState({State::Case::Recording, m_state.startedAt, true});
    m_hud.show(HUDPhase::Recording{true});
}

void AppModel::finish()
{
    if (m_state.value != State::Case::Recording) {
        return;
    }
    endRecording();
    const std::optional<Recording> recording = m_recorder.stop();
    if (!recording) {
        setState({});
        m_hud.show(problem(u"Nothing was recorded. Check the microphone."_s));
        return;
    }
    if (recording->seconds < minimumSeconds) {
        AudioRecorder::discard(recording->path);
        setState({});
        m_hud.hide();
        return;
    }
    setState({State::Case::Transcribing});
    m_hud.show(HUDPhase::Transcribing{});
    transcribe(recording->path, m_groups.activeId());
}

void AppModel::cancel(bool silently)
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
        m_hud.show(notice(u"Cancelled"_s));
    }
}

void AppModel::endRecording()
{
    m_escapeKey.reset();
    m_meterTimer.reset();
    m_limitTask.reset();
}

void AppModel::tickMeter()
{
    float level = 0;
    AudioFileRecorder *recorder = m_recorder.recorder();
    if (recorder != nullptr && recorder->isRecording()) {
        recorder->updateMeters();
        level = std::clamp((recorder->averagePower(0) + meterRange) / meterRange, 0.0F, 1.0F);
    }
    m_hud.model().setLevel(level);
}

QCoro::Task<void> AppModel::transcribe(QString path, std::optional<QString> groupId)
{
    m_uploads.insert(path);
    try {
        Transcript transcript = co_await m_client.transcribe(path);
        co_await deliver(std::move(transcript), std::move(groupId));
    } catch (const LocalizedError &error) {
        setState({});
        const auto *refusal = dynamic_cast<const ApiError *>(&error);
        if (refusal != nullptr && refusal->code() == u"insufficient_tokens") {
            setBalance(0);
            m_hud.show(HUDPhase::OutOfTokens{m_freeGrantMissed});
        } else {
            m_hud.show(problem(error.localizedDescription()));
        }
    }
    m_uploads.remove(path);
    AudioRecorder::discard(path);
}

QCoro::Task<void> AppModel::deliver(Transcript transcript, std::optional<QString> groupId)
{
    setBalance(transcript.balance);
    const QString text = transcript.text.trimmed();
    if (text.isEmpty()) {
        setState({});
        m_hud.show(problem(u"Didn't catch anything"_s));
        co_return;
    }
    m_store.add(text, groupId);
    setState({});
    const TextInserter::Outcome outcome = co_await m_inserter.insert(text);
    // A dictation begun meanwhile has the HUD now.
    if (m_state.value != State::Case::Idle) {
        co_return;
    }
    if (outcome == TextInserter::Outcome::Copied) {
        m_hud.show(notice(u"Copied — press ⌘V to paste"_s));
    } else {
        m_hud.hide();
    }
}

void AppModel::setState(const State &state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged();
        Q_EMIT statusTextChanged();
    }
}
