// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/ShortcutRecorderModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <functional>

class GroupStore;
class KeyMonitors;
class PackagedInfo;
class TranscriptionStore;

/// What the settings window shows beside the controller's values. Main thread only.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    Q_PROPERTY(int transcriptCount READ transcriptCount NOTIFY transcriptCountChanged)
    Q_PROPERTY(int groupCount READ groupCount NOTIFY groupsChanged)
    /// Name of the active group, "All entries" without one.
    Q_PROPERTY(QString activeGroupName READ activeGroupName NOTIFY groupsChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *shortcutRecorder READ shortcutRecorder CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *groupShortcutRecorder READ groupShortcutRecorder CONSTANT)
    Q_PROPERTY(ShortcutRecorderModel *historyShortcutRecorder READ historyShortcutRecorder CONSTANT)

public:
    /// The controller's shortcuts. `disarm` switches all of them off, `arm` on again with their current values; the
    /// others assign a new value.
    struct Shortcuts {
        using Setter = std::function<void(const Shortcut &)>;

        std::function<void()> disarm;
        std::function<void()> arm;
        Setter setShortcut;
        Setter setGroupShortcut;
        Setter setHistoryShortcut;
    };

    SettingsModel(TranscriptionStore &store, GroupStore &groups, const PackagedInfo &info, KeyMonitors &keyMonitors,
                  const Shortcuts &shortcuts);

    int transcriptCount() const;
    int groupCount() const;
    QString activeGroupName() const;
    QString version() const { return m_version; }
    ShortcutRecorderModel *shortcutRecorder() { return &m_recorders[0]; }
    ShortcutRecorderModel *groupShortcutRecorder() { return &m_recorders[1]; }
    ShortcutRecorderModel *historyShortcutRecorder() { return &m_recorders[2]; }

    Q_INVOKABLE void clearHistory();

Q_SIGNALS:
    void transcriptCountChanged();
    void groupsChanged();

private:
    TranscriptionStore &m_store;
    GroupStore &m_groups;
    QString m_version;
    std::array<ShortcutRecorderModel, 3> m_recorders;
};
