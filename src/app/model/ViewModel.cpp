// SPDX-License-Identifier: MIT
#include "app/model/ViewModel.h"

#include "app/model/AppModel.h"
#include "app/model/StoredShortcut.h"
#include "app/model/stateName.h"

#include <algorithm>

namespace {

template <typename Table, typename Key> int placeOf(const Table &table, Key key)
{
    const auto found = std::ranges::find_if(table, key);
    return found == table.end() ? -1 : static_cast<int>(found - table.begin());
}

template <typename Table> QStringList labels(const Table &table)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(table.size()));
    for (const auto &row : table) {
        texts.append(row.label());
    }
    return texts;
}

template <typename Table> bool has(const Table &table, int place)
{
    return place >= 0 && place < static_cast<int>(table.size());
}

} // namespace

ViewModel::ViewModel(AppModel &model) : m_model(model)
{
    connect(&model, &AppModel::stateChanged, this, &ViewModel::stateChanged);
    connect(&model, &AppModel::statusTextChanged, this, &ViewModel::statusTextChanged);
    connect(&model, &AppModel::balanceChanged, this, &ViewModel::balanceChanged);
    connect(&model, &AppModel::shortcutsChanged, this, &ViewModel::shortcutsChanged);
    connect(&model, &AppModel::shortcutErrorsChanged, this, &ViewModel::shortcutErrorsChanged);
    connect(&model, &AppModel::permissionsChanged, this, &ViewModel::permissionsChanged);
    connect(&model, &AppModel::hasConsentChanged, this, &ViewModel::hasConsentChanged);
    connect(&model, &AppModel::launchesAtLoginChanged, this, &ViewModel::launchesAtLoginChanged);
}

QString ViewModel::state() const
{
    return stateName(m_model.state());
}

QString ViewModel::statusText() const
{
    return m_model.statusText();
}

QVariant ViewModel::balance() const
{
    const auto balance = m_model.balance();
    return balance ? QVariant::fromValue(*balance) : QVariant();
}

bool ViewModel::isUnmetered() const
{
    return m_model.isUnmetered();
}

QString ViewModel::shortcutLabel() const
{
    return m_model.shortcut().label();
}

QString ViewModel::groupShortcutLabel() const
{
    return m_model.groupShortcut().label();
}

QString ViewModel::historyShortcutLabel() const
{
    return m_model.historyShortcut().label();
}

QString ViewModel::shortcutError() const
{
    return m_model.shortcutError().value_or(QString());
}

QString ViewModel::groupShortcutError() const
{
    return m_model.groupShortcutError().value_or(QString());
}

QString ViewModel::historyShortcutError() const
{
    return m_model.historyShortcutError().value_or(QString());
}

int ViewModel::singleKey() const
{
    const ModifierKey *key = m_model.shortcut().asModifier();
    return key == nullptr ? -1 : placeOf(modifierKeys(), [key](const ModifierKeyInfo &row) { return row.key == *key; });
}

void ViewModel::setSingleKey(int place)
{
    m_model.setShortcut(has(modifierKeys(), place)
                            ? Shortcut::modifier(modifierKeys().at(static_cast<size_t>(place)).key)
                            : StoredShortcut::standard(StoredShortcut::Use::Dictation));
}

QStringList ViewModel::singleKeyLabels()
{
    return labels(modifierKeys());
}

bool ViewModel::isFnKey() const
{
    const ModifierKey *key = m_model.shortcut().asModifier();
    return key != nullptr && *key == ModifierKey::Fn;
}

int ViewModel::triggerMode() const
{
    return placeOf(triggerModes(), [this](const TriggerModeInfo &row) { return row.mode == m_model.triggerMode(); });
}

void ViewModel::setTriggerMode(int place)
{
    if (has(triggerModes(), place)) {
        m_model.setTriggerMode(triggerModes().at(static_cast<size_t>(place)).mode);
    }
}

QStringList ViewModel::triggerModeLabels()
{
    return labels(triggerModes());
}

bool ViewModel::isMicrophoneGranted() const
{
    return m_model.microphone() == AudioRecorder::Permission::Granted;
}

bool ViewModel::isTrusted() const
{
    return m_model.isTrusted();
}

bool ViewModel::hasConsent() const
{
    return m_model.hasConsent();
}

bool ViewModel::launchesAtLogin() const
{
    return m_model.launchesAtLogin();
}

void ViewModel::setLaunchesAtLogin(bool launches)
{
    m_model.setLaunchesAtLogin(launches);
}

void ViewModel::fixMicrophone()
{
    m_model.fixMicrophone();
}

void ViewModel::fixAccessibility()
{
    m_model.fixAccessibility();
}

void ViewModel::reviewConsent()
{
    m_model.showConsent(true);
}

void ViewModel::refreshBalance()
{
    m_model.refreshBalance();
}

void ViewModel::editGroups()
{
    m_model.historyWindow().show(true);
}
