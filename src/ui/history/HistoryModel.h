// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "ui/history/HistoryRows.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

class Pasteboard;

/// A group that an entry can be moved to, as the entry's menu offers it.
class MoveTarget {
    Q_GADGET
    QML_VALUE_TYPE(moveTarget)
    Q_PROPERTY(QString name MEMBER name)
    /// Empty for no group.
    Q_PROPERTY(QString groupId MEMBER groupId)
    /// The entry is not in it yet.
    Q_PROPERTY(bool isEnabled MEMBER isEnabled)

public:
    QString name;
    QString groupId;
    bool isEnabled = false;

    bool operator==(const MoveTarget &) const = default;
};

/// The history as its window observes it: the rows, the search that narrows them, and what can be done with an entry.
/// Main thread only.
class HistoryModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    Q_PROPERTY(HistoryRows *rows READ rows CONSTANT)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY isSearchingChanged)
    /// How many entries the group has, whatever the search: "5 entries".
    Q_PROPERTY(QString countText READ countText NOTIFY totalChanged)
    /// The group has no entries.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY totalChanged)
    /// The window is on screen: the ages are kept up to date.
    Q_PROPERTY(bool isLive READ isLive WRITE setLive NOTIFY isLiveChanged)

public:
    /// Everything that is passed outlives the model.
    HistoryModel(TranscriptionStore &store, GroupStore &groups, Pasteboard &pasteboard, Clock &clock);

    HistoryRows *rows() { return &m_rows; }
    const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    bool isSearching() const { return m_rows.isSearching(); }
    QString countText() const;
    bool isEmpty() const { return m_rows.total() == 0; }
    bool isLive() const { return m_minute != nullptr; }
    void setLive(bool isLive);

    // An entry is named by its id, because rows move while a menu is open. An unknown id changes nothing.
    /// Puts the text on the pasteboard and marks the entry as copied for 3 seconds; the newest copy has the mark.
    Q_INVOKABLE void copy(const QString &id);
    /// Puts a part of a text on the pasteboard.
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE void remove(const QString &id);
    /// Files the entry under a group; under none when `groupId` is empty.
    Q_INVOKABLE void move(const QString &id, const QString &groupId);
    /// What "Move to Group" offers for an entry.
    Q_INVOKABLE QList<MoveTarget> moveTargets(const QString &id) const;

Q_SIGNALS:
    void searchChanged();
    void isSearchingChanged();
    void totalChanged();
    void isLiveChanged();

private:
    /// Null when the entry is gone.
    const Transcription *entry(const QString &id) const;
    void startMinute();

    TranscriptionStore &m_store;
    GroupStore &m_groups;
    Pasteboard &m_pasteboard;
    Clock &m_clock;
    HistoryRows m_rows;
    QString m_search;
    std::unique_ptr<Clock::Timer> m_copiedReset;
    std::unique_ptr<Clock::Timer> m_minute;
};
