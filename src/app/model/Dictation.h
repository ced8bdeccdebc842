// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioRecorder.h"
#include "output/TextInserter.h"
#include "platform/Clock.h"
#include "shortcuts/CarbonHotKey.h"
#include "shortcuts/Shortcut.h"
#include "ui/models/DictationProperties.h"

#include <QCoroTask>
#include <QHash>

#include <memory>
#include <optional>

class ApiClient;
class GroupStore;
class LocalizedError;
class Permissions;
class RecordingHUD;
class Shortcuts;
class TokenBalance;
class TranscriptionStore;
class UnsentRecordings;
struct Platform;

/// One dictation after the other: the recording, its way to the backend, and that of the text to the history and the
/// program in front. Main thread only.
class Dictation : public DictationProperties {
    Q_OBJECT

public:
    struct State {
        using Case = Activity;

        Case value = Case::Idle;
        /// While recording: when it began, and whether it goes on without the key held.
        Clock::Instant startedAt = {};
        bool handsFree = false;

        bool operator==(const State &) const = default;
    };

    static constexpr std::chrono::milliseconds holdThreshold{350}; ///< shortest press that counts as a hold
    static constexpr double minimumSeconds = 0.3;                  ///< shorter recordings are slips of the finger
    static constexpr std::chrono::seconds maximumDuration{900};

    Dictation(const Platform &platform, ApiClient &client, AudioRecorder &recorder, Permissions &permissions,
              const Shortcuts &shortcuts, TokenBalance &balance, UnsentRecordings &unsent, TranscriptionStore &store,
              const GroupStore &groups, RecordingHUD &hud);
    Dictation(const Dictation &) = delete;
    Dictation &operator=(const Dictation &) = delete;
    /// What is not sent yet goes to the unsent recordings, where those are kept; else no recording stays on disk.
    ~Dictation() override;

    const State &state() const { return m_state; }
    void handle(ShortcutEvent event);
    /// A press and a release as if the trigger mode were "toggle": starts a recording that goes on by itself, or ends
    /// it.
    void toggle();
    /// Ends a recording without a transcript, as Esc does; nothing happens otherwise.
    void cancel() { cancel(false); }

    Activity activity() const override { return m_state.value; }
    QString statusText() const override;

private:
    void released();
    void begin();
    bool mayRecord();
    QCoro::Task<void> askForMicrophone();
    void continueHandsFree();
    void finish();
    void dropRecording(const std::optional<Recording> &recording);
    void cancel(bool silently);
    void endRecording();
    void tickMeter();
    QCoro::Task<void> transcribe(QString path, std::optional<QString> groupId);
    void showRefusal(const LocalizedError &error);
    QCoro::Task<void> deliver(QString text, std::optional<QString> groupId);
    void setState(const State &state);

    const Platform &m_platform;
    ApiClient &m_client;
    AudioRecorder &m_recorder;
    Permissions &m_permissions;
    const Shortcuts &m_shortcuts;
    TokenBalance &m_balance;
    UnsentRecordings &m_unsent;
    TranscriptionStore &m_store;
    const GroupStore &m_groups;
    RecordingHUD &m_hud;
    TextInserter m_inserter;

    State m_state;
    std::unique_ptr<CarbonHotKey> m_escapeKey;
    std::unique_ptr<Clock::Timer> m_meterTimer;
    std::unique_ptr<Clock::Timer> m_limitTask;
    std::unique_ptr<Clock::Timer> m_connectionTimer;
    QHash<QString, std::optional<QString>> m_uploads; ///< recordings whose transcript is awaited, with their groups
    bool m_hasLostMicrophone = false;
    int m_deliveries = 0; ///< texts on their way into the program in front
};
