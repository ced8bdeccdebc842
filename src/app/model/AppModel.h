// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioRecorder.h"
#include "output/TextInserter.h"
#include "platform/Clock.h"
#include "platform/Workspace.h"
#include "service/ApiClient.h"
#include "shortcuts/CarbonHotKey.h"
#include "shortcuts/Shortcut.h"
#include "shortcuts/ShortcutMonitor.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/consent/ConsentWindow.h"
#include "ui/history/HistoryWindow.h"
#include "ui/hud/RecordingHUD.h"
#include "ui/settings/SettingsWindow.h"

#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

class AIConsent;
struct Platform;

/// The one controller: the dictation state machine (AppModelDictation.cpp), the settings and the arming of the
/// shortcuts (AppModel.cpp), permissions and consent (AppModelPermissions.cpp), and the token balance
/// (AppModelBalance.cpp). Main thread only. Published members announce every change of their value.
class AppModel : public QObject {
    Q_OBJECT

public:
    struct State {
        enum class Case { Idle, Recording, Transcribing };

        Case value = Case::Idle;
        /// While recording: when it began, and whether it goes on without the key held.
        Clock::Instant startedAt = {};
        bool handsFree = false;

        bool operator==(const State &) const = default;
    };

    static constexpr std::chrono::milliseconds holdThreshold{350}; ///< shortest press that counts as a hold
    static constexpr double minimumSeconds = 0.3;                  ///< shorter recordings are slips of the finger
    static constexpr std::chrono::seconds maximumDuration{900};

    /// What makes the windows, each at its first use.
    struct Views {
        RecordingHUD::PanelFactory hud;
        HistoryWindow::WindowFactory history;
        ConsentWindow::WindowFactory consent;
        SettingsWindow::WindowFactory settings;
    };

    AppModel(const Platform &platform, ApiClient &client, AIConsent &consent, Views views);
    AppModel(const AppModel &) = delete;
    AppModel &operator=(const AppModel &) = delete;
    /// A recording in progress is abandoned; no recording stays on disk.
    ~AppModel() override;

    /// Arms the shortcuts and starts the watches; once, when the program is up.
    void start();

    // Dictation.
    const State &state() const { return m_state; }
    /// What the shortcut does next, or what is going on.
    QString statusText() const;
    void handle(ShortcutEvent event);
    /// A press and a release as if the trigger mode were "toggle": starts a recording that goes on by itself, or ends
    /// it.
    void toggleDictation();
    /// Ends a recording without a transcript, as Esc does; nothing happens otherwise.
    void cancelDictation() { cancel(false); }

    // Settings. A change takes effect and is stored at once.
    const Shortcut &shortcut() const { return m_shortcut; }
    void setShortcut(const Shortcut &shortcut);
    TriggerMode triggerMode() const { return m_triggerMode; }
    void setTriggerMode(TriggerMode mode);
    const Shortcut &groupShortcut() const { return m_groupShortcut; }
    void setGroupShortcut(const Shortcut &shortcut);
    const Shortcut &historyShortcut() const { return m_historyShortcut; }
    void setHistoryShortcut(const Shortcut &shortcut);

    /// Why a shortcut is not armed; nothing when it is.
    const std::optional<QString> &shortcutError() const { return m_shortcutError; }
    const std::optional<QString> &groupShortcutError() const { return m_groupShortcutError; }
    const std::optional<QString> &historyShortcutError() const { return m_historyShortcutError; }

    /// Arm the shortcuts with their current values. While they are disarmed, that waits until they are rearmed.
    void armShortcut();
    void armWindowShortcuts();
    /// Switches all shortcuts off, so that pressing one can be recorded.
    void disarmShortcuts();
    void rearmShortcuts();

    /// Makes the next or previous group active, and says so on the HUD when no dictation runs.
    void cycleGroup(bool forward);

    // Permissions.
    bool isTrusted() const { return m_isTrusted; }
    AudioRecorder::Permission microphone() const { return m_microphone; }
    void requestMicrophone();
    /// What a person does about a missing permission: answer the desktop's question or change its settings.
    void fixMicrophone();
    void fixAccessibility();

    // Consent to sending recordings.
    bool hasConsent() const { return m_hasConsent; }
    /// Opens the consent window: to ask, or to look at an answer given before.
    void showConsent(bool isReview);

    /// Whether the desktop starts the program at login, as the desktop knows it now.
    bool launchesAtLogin() const;
    void setLaunchesAtLogin(bool launches);

    // Balance.
    /// Last known number of tokens; nothing before the first answer of the backend.
    std::optional<int64_t> balance() const { return m_balance; }
    bool isUnmetered() const { return m_isUnmetered; }
    bool freeGrantMissed() const { return m_freeGrantMissed; }
    void refreshBalance();
    /// Opens the checkout page and watches the balance until the purchase arrives.
    void buyTokens();

    TranscriptionStore &store() { return m_store; }
    GroupStore &groups() { return m_groups; }
    HistoryWindow &historyWindow() { return m_historyWindow; }
    SettingsWindow &settingsWindow() { return m_settingsWindow; }
    RecordingHUD &hud() { return m_hud; }

Q_SIGNALS:
    void stateChanged();
    void statusTextChanged();
    void shortcutsChanged();
    void shortcutErrorsChanged();
    void permissionsChanged();
    void balanceChanged();
    void hasConsentChanged();
    void launchesAtLoginChanged();

private:
    // AppModel.cpp
    std::unique_ptr<CarbonHotKey> armWindowShortcut(const Shortcut &shortcut, std::function<void()> action);

    // AppModelPermissions.cpp
    void watchPermissions();
    void checkPermissions();
    QCoro::Task<void> awaitMicrophone();
    void consentAnswered(bool isGranted, bool isReview);
    void openPrivacySettings(Workspace::PrivacyPane pane);

    // AppModelDictation.cpp
    void released();
    void begin();
    QCoro::Task<void> askForMicrophone();
    void continueHandsFree();
    void finish();
    void cancel(bool silently);
    void endRecording();
    void tickMeter();
    QCoro::Task<void> transcribe(QString path, std::optional<QString> groupId);
    QCoro::Task<void> deliver(Transcript transcript, std::optional<QString> groupId);
    void setState(const State &state);

    // AppModelBalance.cpp
    void setBalance(int64_t balance);
    QCoro::Task<void> fetchBalance();
    QCoro::Task<void> openCheckout();
    void pollForPurchase(std::optional<int64_t> startingBalance, int polls);
    QCoro::Task<void> checkForPurchase(std::optional<int64_t> startingBalance, int polls, int watch);

    const Platform &m_platform;
    Clock &m_clock;
    ApiClient &m_client;
    AIConsent &m_consent;

    State m_state;
    std::optional<int64_t> m_balance;
    std::unique_ptr<Clock::Timer> m_purchaseWatch;
    int m_purchaseWatchNumber = 0; ///< tells a poll under way that its watch was replaced
    bool m_isUnmetered = false;
    bool m_freeGrantMissed = false;
    bool m_isTrusted = false;
    AudioRecorder::Permission m_microphone;
    bool m_hasConsent = false;
    bool m_isDisarmed = false;
    std::optional<QString> m_shortcutError;
    Shortcut m_shortcut;
    TriggerMode m_triggerMode;
    Shortcut m_groupShortcut;
    Shortcut m_historyShortcut;
    std::optional<QString> m_groupShortcutError;
    std::optional<QString> m_historyShortcutError;

    TranscriptionStore m_store;
    GroupStore m_groups;
    HistoryWindow m_historyWindow;
    ConsentWindow m_consentWindow;
    SettingsWindow m_settingsWindow;
    AudioRecorder m_recorder;
    TextInserter m_inserter;
    RecordingHUD m_hud;
    ShortcutMonitor m_monitor;
    std::unique_ptr<CarbonHotKey> m_escapeKey;
    std::unique_ptr<CarbonHotKey> m_groupHotKey;
    std::unique_ptr<CarbonHotKey> m_historyHotKey;
    std::unique_ptr<Clock::Timer> m_meterTimer;
    std::unique_ptr<Clock::Timer> m_limitTask;
    std::unique_ptr<Clock::Timer> m_trustTimer;
    QSet<QString> m_uploads; ///< recordings whose transcript is awaited
};
