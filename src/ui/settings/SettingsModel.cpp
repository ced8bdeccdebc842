// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsModel.h"

#include "platform/PackagedInfo.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

SettingsModel::SettingsModel(TranscriptionStore &store, GroupStore &groups, const PackagedInfo &info,
                             KeyMonitors &keyMonitors, const Shortcuts &shortcuts)
    : m_store(store),
      m_groups(groups),
      m_version(info.string(u"CFBundleShortVersionString"_s).value_or(u"—"_s)),
      m_recorders{{{keyMonitors, {shortcuts.disarm, shortcuts.arm, shortcuts.setShortcut}},
                   {keyMonitors, {shortcuts.disarm, shortcuts.arm, shortcuts.setGroupShortcut}},
                   {keyMonitors, {shortcuts.disarm, shortcuts.arm, shortcuts.setHistoryShortcut}}}}
{
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
    return active ? active->name : u"All entries"_s;
}

void SettingsModel::clearHistory()
{
    m_store.clear();
}
