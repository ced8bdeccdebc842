// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "store/TranscriptionStore.h"
#include "ui/history/SearchIndex.h"
#include "ui/windows/InPlaceListModel.h"

#include <QTimer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <vector>

class GroupStore;
class Pasteboard;

/// The rows of the history window: the entries of the active group, newest first, narrowed by the search. Main thread
/// only. A long search is made in slices between which the window stays alive; `isSearching` until it is done.
class HistoryModel : public InPlaceListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY isSearchingChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    /// How many entries the group has, whatever the search: "5 entries".
    Q_PROPERTY(QString countText READ countText NOTIFY totalChanged)
    /// The group has no entries.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY totalChanged)
    /// The window is on screen: the ages are kept up to date.
    Q_PROPERTY(bool isLive READ isLive WRITE setLive NOTIFY isLiveChanged)

public:
    enum Role { EntryIdRole = Qt::UserRole, TextRole, DayRole, MonthRole, MetaRole, IsCopiedRole, ShowDividerRole };

    HistoryModel(TranscriptionStore &store, GroupStore &groups, Pasteboard &pasteboard, Clock &clock);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    bool isSearching() const { return m_running.has_value(); }
    QString countText() const;
    bool isEmpty() const { return m_total == 0; }
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
    /// What "Move to Group" offers for an entry, as objects with `name`, `groupId` and `isEnabled`.
    Q_INVOKABLE QVariantList moveTargets(const QString &id) const;

Q_SIGNALS:
    void searchChanged();
    void isSearchingChanged();
    void rowsChanged();
    void totalChanged();
    void isLiveChanged();

private:
    /// The serials (SearchIndex) of the rows; nothing stands for all entries.
    using Rows = std::optional<std::vector<uint32_t>>;

    /// The row's place in the store.
    qsizetype placeOf(int row) const;
    const Transcription &entry(int row) const;
    /// Null when the entry is gone.
    const Transcription *entry(const QString &id) const;
    uint32_t serialOf(qsizetype place) const;
    bool isInGroup(const Transcription &entry) const;
    /// The name of the entry's group, where the row is to tell it.
    std::optional<QString> groupName(const Transcription &entry) const;
    QString meta(const Transcription &entry) const;
    void onAdded();
    void onChanged(qsizetype place);
    void onRemoved(qsizetype place);
    /// Starts over with the rows of the active group and the search. `within`, where given, are rows known to hold all
    /// that the search can find.
    void refresh(Rows within = {});
    void setTotal(int total);
    void replace(Rows rows);
    void removeRow(int row);
    void refreshRole(int role);
    void setCopied(const QString &id);
    void startMinute();
    /// Brings the index up to date, in slices; then goes on with the search.
    void work();
    void indexTexts(QDeadlineTimer deadline);
    void searchOn(QDeadlineTimer deadline);

    TranscriptionStore &m_store;
    GroupStore &m_groups;
    Pasteboard &m_pasteboard;
    Clock &m_clock;
    Rows m_rows;
    int m_count = 0;
    int m_total = 0;
    QString m_search;
    /// The search without surrounding blanks.
    QString m_query;
    SearchIndex m_index;
    std::optional<SearchIndex::Search> m_running;
    std::vector<uint32_t> m_found;
    QTimer m_worker;
    QString m_copiedId;
    std::unique_ptr<Clock::Timer> m_copiedReset;
    std::unique_ptr<Clock::Timer> m_minute;
};
