// SPDX-License-Identifier: MIT
#include "app/model/AppModel.h"

#include "app/model/StoredShortcut.h"
#include "platform/Accessibility.h"
#include "platform/Platform.h"
#include "platform/Preferences.h"
#include "service/AIConsent.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Use = StoredShortcut::Use;

const QString triggerModeKey = u"triggerMode"_s;
TriggerMode storedTriggerMode(const Preferences &preferences)
{
    const auto stored = preferences.string(triggerModeKey);
    const auto *const found =
        std::ranges::find_if(triggerModes(), [&](const TriggerModeInfo &mode) { return stored == mode.rawValue; });
    return found == triggerModes().end() ? TriggerMode::Both : found->mode;
}

std::optional<QString> conflict(bool isArmed, const Shortcut &shortcut)
{
    return isArmed ? std::nullopt
                   : std::optional(shortcut.label() + u" is already in use. Pick a different shortcut."_s);
}

} // namespace

AppModel::AppModel(const Platform &platform, ApiClient &client, AIConsent &consent, Views views)
    : m_platform(platform),
      m_clock(platform.clock),
      m_client(client),
      m_consent(consent),
      m_freeGrantMissed(platform.preferences.boolean(u"freeGrantMissed"_s)),
      m_isTrusted(platform.accessibility.isTrusted()),
      m_hasConsent(consent.isCurrent()),
      m_shortcut(StoredShortcut::read(platform.preferences, Use::Dictation)),
      m_triggerMode(storedTriggerMode(platform.preferences)),
      m_groupShortcut(StoredShortcut::read(platform.preferences, Use::Group)),
      m_historyShortcut(StoredShortcut::read(platform.preferences, Use::History)),
      m_store(platform.files, platform.clock),
      m_groups(platform.files, platform.preferences, platform.clock),
      m_historyWindow(platform.application, platform.preferences, platform.screens, std::move(views.history)),
      m_consentWindow(consent, platform.preferences, platform.packagedInfo, platform.application, platform.screens,
                      std::move(views.consent)),
      m_settingsWindow(platform.application, platform.screens, std::move(views.settings)),
      m_recorder(platform.microphone, platform.files),
      m_inserter(platform.pasteboard, platform.keyEvents, platform.accessibility, platform.clock),
      m_hud(platform.clock, platform.screens, std::move(views.hud)),
      m_monitor(platform.hotKeys, platform.keyMonitors, [this](ShortcutEvent event) { handle(event); })
{
    m_microphone = m_recorder.permission();
}

AppModel::~AppModel()
{
    m_recorder.cancel();
    std::ranges::for_each(m_uploads, &AudioRecorder::discard);
}

void AppModel::start()
{
    m_hud.model().setOnBuyTokens([this] {
        m_hud.hide();
        buyTokens();
    });
    armShortcut();
    armWindowShortcuts();
    watchPermissions();
    if (m_consent.isCurrent()) {
        refreshBalance();
    } else {
        showConsent(false);
    }
}

void AppModel::setShortcut(const Shortcut &shortcut)
{
    m_shortcut = shortcut;
    m_platform.preferences.setData(StoredShortcut::key(Use::Dictation), shortcut.toJson());
    armShortcut();
    if (shortcut.asModifier() != nullptr && !m_isTrusted) {
        m_platform.accessibility.promptForTrust();
    }
    Q_EMIT shortcutsChanged();
    Q_EMIT statusTextChanged();
}

void AppModel::setTriggerMode(TriggerMode mode)
{
    m_triggerMode = mode;
    m_platform.preferences.setString(triggerModeKey, info(mode).rawValue.toString());
    Q_EMIT shortcutsChanged();
    Q_EMIT statusTextChanged();
}

void AppModel::setGroupShortcut(const Shortcut &shortcut)
{
    m_groupShortcut = shortcut;
    m_platform.preferences.setData(StoredShortcut::key(Use::Group), shortcut.toJson());
    armWindowShortcuts();
    Q_EMIT shortcutsChanged();
}

void AppModel::setHistoryShortcut(const Shortcut &shortcut)
{
    m_historyShortcut = shortcut;
    m_platform.preferences.setData(StoredShortcut::key(Use::History), shortcut.toJson());
    armWindowShortcuts();
    Q_EMIT shortcutsChanged();
}

void AppModel::armShortcut()
{
    if (m_isDisarmed) {
        return;
    }
    const bool isArmed = m_monitor.activate(m_shortcut);
    m_shortcutError =
        isArmed ? std::nullopt
                : std::optional(m_shortcut.label() + u" is already used by another app. Pick a different shortcut."_s);
    Q_EMIT shortcutErrorsChanged();
}

void AppModel::armWindowShortcuts()
{
    if (m_isDisarmed) {
        return;
    }
    m_groupHotKey.reset();
    m_historyHotKey.reset();
    m_groupHotKey = armWindowShortcut(m_groupShortcut, [this] { cycleGroup(true); });
    m_historyHotKey = armWindowShortcut(m_historyShortcut, [this] { m_historyWindow.toggle(); });
    m_groupShortcutError = conflict(m_groupHotKey != nullptr, m_groupShortcut);
    m_historyShortcutError = conflict(m_historyHotKey != nullptr, m_historyShortcut);
    Q_EMIT shortcutErrorsChanged();
}

void AppModel::disarmShortcuts()
{
    m_isDisarmed = true;
    m_monitor.deactivate();
    m_groupHotKey.reset();
    m_historyHotKey.reset();
}

void AppModel::rearmShortcuts()
{
    m_isDisarmed = false;
    armShortcut();
    armWindowShortcuts();
}

std::unique_ptr<CarbonHotKey> AppModel::armWindowShortcut(const Shortcut &shortcut, std::function<void()> action)
{
    const Shortcut::Combo *combo = shortcut.asCombo();
    if (combo == nullptr) {
        return nullptr;
    }
    return CarbonHotKey::create(m_platform.hotKeys, combo->keyCode, combo->modifiers,
                                [action = std::move(action)](bool pressed) {
                                    if (pressed) {
                                        action();
                                    }
                                });
}

void AppModel::cycleGroup(bool forward)
{
    m_groups.cycle(forward);
    if (m_state.value == State::Case::Idle) {
        const auto group = m_groups.group(m_groups.activeId());
        m_hud.show(HUDPhase::Group{group ? group->name : u"All entries"_s});
    }
}
