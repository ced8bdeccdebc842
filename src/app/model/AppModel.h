// SPDX-License-Identifier: MIT
#pragma once

#include "app/model/Dictation.h"
#include "app/model/GeneralSettings.h"
#include "app/model/Permissions.h"
#include "app/model/Shortcuts.h"
#include "app/model/TokenBalance.h"
#include "app/model/UnsentRecordings.h"
#include "audio/AudioRecorder.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/consent/ConsentWindow.h"
#include "ui/history/HistoryWindow.h"
#include "ui/hud/RecordingHUD.h"
#include "ui/settings/SettingsWindow.h"

#include <QObject>

/// The one controller: a façade over the objects that hold the program's state and do its work. It owns them, connects
/// them to each other, and passes their signals on. Main thread only.
class AppModel : public QObject {
    Q_OBJECT

public:
    using State = Dictation::State;

    /// What makes the windows, each at its first use.
    struct Views {
        RecordingHUD::PanelFactory hud;
        std::function<std::unique_ptr<QWindow>(AppModel &)> history;
        ConsentWindow::WindowFactory consent;
        std::function<std::unique_ptr<QWindow>(AppModel &)> settings;
    };

    AppModel(const Platform &platform, ApiClient &client, AIConsent &consent, Views views);
    AppModel(const AppModel &) = delete;
    AppModel &operator=(const AppModel &) = delete;

    /// Arms the shortcuts and starts the watches; once, when the program is up.
    void start();

    const State &state() const { return m_dictation.state(); }
    QString statusText() const { return m_dictation.statusText(); }
    void handle(ShortcutEvent event) { m_dictation.handle(event); }

    const Shortcut &shortcut() const { return m_shortcuts.shortcut(Shortcuts::Use::Dictation); }
    void setShortcut(const Shortcut &shortcut) { m_shortcuts.setShortcut(Shortcuts::Use::Dictation, shortcut); }
    TriggerMode triggerMode() const { return m_shortcuts.triggerMode(); }
    void setTriggerMode(TriggerMode mode) { m_shortcuts.setTriggerMode(mode); }
    const Shortcut &groupShortcut() const { return m_shortcuts.shortcut(Shortcuts::Use::Group); }
    void setGroupShortcut(const Shortcut &shortcut) { m_shortcuts.setShortcut(Shortcuts::Use::Group, shortcut); }
    const Shortcut &historyShortcut() const { return m_shortcuts.shortcut(Shortcuts::Use::History); }
    void setHistoryShortcut(const Shortcut &shortcut) { m_shortcuts.setShortcut(Shortcuts::Use::History, shortcut); }
    /// Why a shortcut is not armed; nothing when it is.
    const std::optional<QString> &shortcutError() const { return m_shortcuts.error(Shortcuts::Use::Dictation); }
    const std::optional<QString> &groupShortcutError() const { return m_shortcuts.error(Shortcuts::Use::Group); }
    const std::optional<QString> &historyShortcutError() const { return m_shortcuts.error(Shortcuts::Use::History); }
    void armShortcut() { m_shortcuts.armShortcut(); }
    void armWindowShortcuts() { m_shortcuts.armWindowShortcuts(); }

    /// Makes the next or previous group active, and says so on the HUD when no dictation runs.
    void cycleGroup(bool forward);

    bool isTrusted() const { return m_permissions.isTrusted(); }
    AudioRecorder::Permission microphone() const { return m_permissions.microphone(); }
    void requestMicrophone() { m_permissions.requestMicrophone(); }
    bool hasConsent() const { return m_permissions.hasConsent(); }
    void showConsent(bool isReview) { m_permissions.showConsent(isReview); }
    bool launchesAtLogin() const { return m_general.launchesAtLogin(); }
    void setLaunchesAtLogin(bool launches) { m_general.setLaunchesAtLogin(launches); }

    std::optional<int64_t> balance() const { return m_balance.balance(); }
    bool isUnmetered() const { return m_balance.isUnmetered(); }
    bool freeGrantMissed() const { return m_balance.freeGrantMissed(); }
    void refreshBalance() { m_balance.refresh(); }
    void buyTokens() { m_balance.buyTokens(); }

    TranscriptionStore &store() { return m_store; }
    GroupStore &groups() { return m_groups; }
    HistoryWindow &historyWindow() { return m_historyWindow; }
    SettingsWindow &settingsWindow() { return m_settingsWindow; }
    RecordingHUD &hud() { return m_hud; }
    Dictation &dictation() { return m_dictation; }
    Shortcuts &shortcuts() { return m_shortcuts; }
    Permissions &permissions() { return m_permissions; }
    TokenBalance &tokenBalance() { return m_balance; }
    GeneralSettings &general() { return m_general; }
    UnsentRecordings &unsent() { return m_unsent; }

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
    void connectParts();
    void tell(const FileStore &file);

    const AIConsent &m_consent;
    TranscriptionStore m_store;
    GroupStore m_groups;
    ConsentWindow m_consentWindow;
    AudioRecorder m_recorder;
    RecordingHUD m_hud;
    GeneralSettings m_general;
    Permissions m_permissions;
    TokenBalance m_balance;
    UnsentRecordings m_unsent;
    Shortcuts m_shortcuts;
    Dictation m_dictation;
    // Last, so that they go first: their views watch the others.
    HistoryWindow m_historyWindow;
    SettingsWindow m_settingsWindow;
};
