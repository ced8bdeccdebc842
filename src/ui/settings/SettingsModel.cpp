// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsModel.h"

#include "platform/KeyMonitors.h"
#include "platform/PackagedInfo.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/models/ShortcutProperties.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

template <typename Table> QStringList labels(const Table &table)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(table.size()));
    for (const auto &row : table) {
        texts.append(row.label());
    }
    return texts;
}

template <typename Table, typename Condition> int placeOf(const Table &table, Condition condition)
{
    const auto found = std::ranges::find_if(table, condition);
    return found == table.end() ? -1 : static_cast<int>(found - table.begin());
}

template <typename Table> bool has(const Table &table, int place)
{
    return place >= 0 && place < static_cast<int>(table.size());
}

/// What the recorder of a shortcut does with it.
ShortcutRecorder::Actions recording(ShortcutProperties &shortcuts, ShortcutProperties::Use use)
{
    return {[&shortcuts] { shortcuts.disarm(); }, [&shortcuts] { shortcuts.rearm(); },
            [&shortcuts, use](const Shortcut &shortcut) { shortcuts.setShortcut(use, shortcut); }};
}

} // namespace

SettingsModel::SettingsModel(ShortcutProperties &shortcuts, TranscriptionStore &store, GroupStore &groups,
                             std::function<void()> editGroups, const PackagedInfo &packagedInfo,
                             KeyMonitors &keyMonitors)
    : m_shortcuts(shortcuts),
      m_keyMonitors(keyMonitors),
      m_store(store),
      m_groups(groups),
      m_editGroups(std::move(editGroups)),
      m_version(packagedInfo.string(u"CFBundleShortVersionString"_s).value_or(u"—"_s)),
      m_recorders{{{keyMonitors, recording(shortcuts, ShortcutProperties::Use::Dictation)},
                   {keyMonitors, recording(shortcuts, ShortcutProperties::Use::Group)},
                   {keyMonitors, recording(shortcuts, ShortcutProperties::Use::History)}}}
{
    connect(&shortcuts, &ShortcutProperties::shortcutsChanged, this, &SettingsModel::shortcutsChanged);
    connect(&store, &TranscriptionStore::itemsChanged, this, &SettingsModel::transcriptCountChanged);
    connect(&groups, &GroupStore::groupsChanged, this, &SettingsModel::groupsChanged);
    connect(&groups, &GroupStore::activeIdChanged, this, &SettingsModel::groupsChanged);
    for (ShortcutRecorderModel &recorder : m_recorders) {
        QQmlEngine::setObjectOwnership(&recorder, QQmlEngine::CppOwnership);
        // Before it switches the shortcuts off: one that ends its listening switches them on.
        connect(&recorder, &ShortcutRecorderModel::aboutToStart, this, [this] {
            for (ShortcutRecorderModel &other : m_recorders) {
                other.stop();
            }
        });
    }
}

int SettingsModel::singleKey() const
{
    const ModifierKey *key = m_shortcuts.shortcut(ShortcutProperties::Use::Dictation).asModifier();
    return key == nullptr ? -1 : placeOf(modifierKeys(), [key](const ModifierKeyInfo &row) { return row.key == *key; });
}

void SettingsModel::setSingleKey(int place)
{
    if (has(modifierKeys(), place)) {
        const ModifierKey key = modifierKeys().at(static_cast<size_t>(place)).key;
        m_shortcuts.setShortcut(ShortcutProperties::Use::Dictation, Shortcut::modifier(key));
    } else {
        m_shortcuts.useStandard(ShortcutProperties::Use::Dictation);
    }
}

QStringList SettingsModel::singleKeyLabels()
{
    return labels(modifierKeys());
}

bool SettingsModel::isFnKey() const
{
    const ModifierKey *key = m_shortcuts.shortcut(ShortcutProperties::Use::Dictation).asModifier();
    return key != nullptr && *key == ModifierKey::Fn;
}

bool SettingsModel::isKeyUnseen() const
{
    const ModifierKey *key = m_shortcuts.shortcut(ShortcutProperties::Use::Dictation).asModifier();
    return key != nullptr && !m_keyMonitors.canSee(info(*key).keyCode);
}

int SettingsModel::triggerMode() const
{
    return placeOf(triggerModes(),
                   [this](const TriggerModeInfo &row) { return row.mode == m_shortcuts.triggerMode(); });
}

void SettingsModel::setTriggerMode(int place)
{
    if (has(triggerModes(), place)) {
        m_shortcuts.setTriggerMode(triggerModes().at(static_cast<size_t>(place)).mode);
    }
}

QStringList SettingsModel::triggerModeLabels()
{
    return labels(triggerModes());
}

int SettingsModel::transcriptCount() const
{
    return int(m_store.items().size());
}

int SettingsModel::groupCount() const
{
    return int(m_groups.groups().size());
}

QString SettingsModel::activeGroupName() const
{
    const auto active = m_groups.group(m_groups.activeId());
    return active ? active->name : tr("All entries");
}

void SettingsModel::clearHistory()
{
    m_store.clear();
}
