// SPDX-License-Identifier: MIT
#include "app/model/AppModel.h"

#include "platform/Platform.h"
#include "service/AIConsent.h"

#include <QWindow>

using namespace Qt::StringLiterals;

AppModel::AppModel(const Platform &platform, ApiClient &client, AIConsent &consent, Views views)
    : m_consent(consent),
      m_store(platform.files, platform.clock),
      m_groups(platform.files, platform.preferences, platform.clock),
      m_consentWindow(consent, platform.preferences, platform.packagedInfo, platform.application, platform.screens,
                      std::move(views.consent)),
      m_recorder(platform.microphone, platform.files),
      m_hud(platform.clock, platform.screens, std::move(views.hud)),
      m_general(platform.loginItem, platform.preferences, m_hud),
      m_permissions(platform, m_recorder, consent, m_consentWindow, m_hud),
      m_balance(platform.clock, platform.preferences, platform.workspace, client, m_hud),
      m_unsent(platform, client, m_store, m_groups, m_balance),
      m_shortcuts(platform.hotKeys, platform.keyMonitors, platform.preferences, platform.accessibility),
      m_dictation(platform, client, m_recorder, m_permissions, m_shortcuts, m_balance, m_unsent, m_store, m_groups,
                  m_hud),
      m_historyWindow(platform.application, platform.preferences, platform.screens,
                      [this, make = std::move(views.history)](HistoryWindow &) { return make(*this); }),
      m_settingsWindow(platform.application, platform.screens,
                       [this, make = std::move(views.settings)] { return make(*this); })
{
    connectParts();
}

void AppModel::connectParts()
{
    connect(&m_shortcuts, &Shortcuts::groupPressed, this, [this] { cycleGroup(true); });
    connect(&m_shortcuts, &Shortcuts::historyPressed, &m_historyWindow, &HistoryWindow::toggle);
    connect(&m_permissions, &Permissions::trustChanged, &m_shortcuts, &Shortcuts::armShortcut);
    connect(&m_permissions, &Permissions::consentGranted, &m_balance, &TokenBalance::refresh);
    connect(&m_store, &FileStore::noticeChanged, this, [this] { tell(m_store); });
    connect(&m_groups, &FileStore::noticeChanged, this, [this] { tell(m_groups); });

    connect(&m_dictation, &Dictation::stateChanged, this, &AppModel::stateChanged);
    connect(&m_dictation, &Dictation::statusTextChanged, this, &AppModel::statusTextChanged);
    connect(&m_shortcuts, &Shortcuts::shortcutsChanged, this, &AppModel::shortcutsChanged);
    connect(&m_shortcuts, &Shortcuts::shortcutErrorsChanged, this, &AppModel::shortcutErrorsChanged);
    connect(&m_permissions, &Permissions::permissionsChanged, this, &AppModel::permissionsChanged);
    connect(&m_permissions, &Permissions::hasConsentChanged, this, &AppModel::hasConsentChanged);
    connect(&m_balance, &TokenBalance::balanceChanged, this, &AppModel::balanceChanged);
    connect(&m_general, &GeneralSettings::launchesAtLoginChanged, this, &AppModel::launchesAtLoginChanged);
}

void AppModel::start()
{
    m_hud.model().setOnBuyTokens([this] {
        m_hud.hide();
        buyTokens();
    });
    armShortcut();
    armWindowShortcuts();
    m_permissions.watch();
    tell(m_store);
    tell(m_groups);
    if (m_consent.isCurrent()) {
        refreshBalance();
    } else {
        showConsent(false);
    }
}

/// What is wrong with a file of the user's, as soon as it is known and once for each cause.
void AppModel::tell(const FileStore &file)
{
    if (const QString notice = file.notice(); !notice.isEmpty()) {
        m_hud.notify(HUDPhase::Message{notice, true});
    }
}

void AppModel::cycleGroup(bool forward)
{
    m_groups.cycle(forward);
    if (state().value == State::Case::Idle) {
        const auto group = m_groups.group(m_groups.activeId());
        m_hud.show(HUDPhase::Group{group ? group->name : tr("All entries")});
    }
}
