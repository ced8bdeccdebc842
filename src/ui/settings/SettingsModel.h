// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/ShortcutRecorderModel.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <functional>

class GroupStore;
class KeyMonitors;
class PackagedInfo;
class ShortcutProperties;
class TranscriptionStore;

/// What the settings window shows beside the program's own properties: choices, counts and recorders. Main thread only.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    /// The single key's place in `singleKeyLabels`; -1 while the shortcut is a combination. Writing -1 makes it the
    /// default combination.
    Q_PROPERTY(int singleKey READ singleKey WRITE setSingleKey NOTIFY shortcutsChanged)
    Q_PROPERTY(QStringList singleKeyLabels READ singleKeyLabels CONSTANT)
    /// The single key is fn.
    Q_PROPERTY(bool isFnKey READ isFnKey NOTIFY shortcutsChanged)
    /// The keyboard or the desktop keeps the single key to itself.
    Q_PROPERTY(bool isKeyUnseen READ isKeyUnseen NOTIFY shortcutsChanged)
    /// Place in `triggerModeLabels`.
    Q_PROPERTY(int triggerMode READ triggerMode WRITE setTriggerMode NOTIFY shortcutsChanged)
    Q_PROPERTY(QStringList triggerModeLabels READ triggerModeLabels CONSTANT)
    Q_PROPERTY(int transcriptCount READ transcriptCount NOTIFY transcriptCountChanged)
    Q_PROPERTY(int groupCount READ groupCount NOTIFY groupsChanged)
    /// Name of the active group, "All entries" without one.
    Q_PROPERTY(QString activeGroupName READ activeGroupName NOTIFY groupsChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *shortcutRecorder READ shortcutRecorder CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *groupShortcutRecorder READ groupShortcutRecorder CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *historyShortcutRecorder READ historyShortcutRecorder CONSTANT)

public:
    SettingsModel(ShortcutProperties &shortcuts, TranscriptionStore &store, GroupStore &groups,
                  std::function<void()> editGroups, const PackagedInfo &info, KeyMonitors &keyMonitors);

    int singleKey() const;
    void setSingleKey(int place);
    static QStringList singleKeyLabels();
    bool isFnKey() const;
    bool isKeyUnseen() const;
    int triggerMode() const;
    void setTriggerMode(int place);
    static QStringList triggerModeLabels();
    int transcriptCount() const;
    int groupCount() const;
    QString activeGroupName() const;
    QString version() const { return m_version; }
    ShortcutRecorderModel *shortcutRecorder() { return &m_recorders[0]; }
    ShortcutRecorderModel *groupShortcutRecorder() { return &m_recorders[1]; }
    ShortcutRecorderModel *historyShortcutRecorder() { return &m_recorders[2]; }

    Q_INVOKABLE void clearHistory();
    /// Opens the group editor.
    Q_INVOKABLE void editGroups() const { m_editGroups(); }

Q_SIGNALS:
    void shortcutsChanged();
    void transcriptCountChanged();
    void groupsChanged();

private:
    ShortcutProperties &m_shortcuts;
    const KeyMonitors &m_keyMonitors;
    TranscriptionStore &m_store;
    GroupStore &m_groups;
    std::function<void()> m_editGroups;
    QString m_version;
    std::array<ShortcutRecorderModel, 3> m_recorders;
};
