// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "store/TranscriptionStore.h"
#include "ui/history/HistorySearch.h"
#include "ui/models/InPlaceListModel.h"

#include <QtQml/qqmlregistration.h>

#include <optional>

class GroupStore;

/// The rows of the history window: the entries of the active group, newest first, narrowed by a search. Main thread
/// only.
class HistoryRows : public InPlaceListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The history's model has them")
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)

public:
    enum Role { EntryIdRole = Qt::UserRole, TextRole, DayRole, MonthRole, MetaRole, IsCopiedRole, ShowDividerRole };

    /// Everything that is passed outlives the rows.
    HistoryRows(TranscriptionStore &store, GroupStore &groups, const Clock &clock);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Narrows the rows to the entries that hold the query; all of the group for an empty one. A long search goes on
    /// after the call: `isSearching` until it is done.
    void setQuery(const QString &query);
    bool isSearching() const { return m_search.isRunning(); }
    /// How many entries the group has, whatever the query.
    int total() const { return m_total; }

    /// The entry that is marked as copied; none when empty.
    void setCopied(const QString &id);
    /// Shows how old the entries are by now.
    void refreshAges() { refreshRole(MetaRole); }

Q_SIGNALS:
    void isSearchingChanged();
    void rowsChanged();
    void totalChanged();

private:
    /// Nothing stands for all entries.
    using Serials = std::optional<HistorySearch::Serials>;

    /// The row's place in the store.
    qsizetype placeOf(int row) const;
    bool isInGroup(const Transcription &entry) const;
    /// The name of the entry's group, where the row is to tell it.
    std::optional<QString> groupName(const Transcription &entry) const;
    QString meta(const Transcription &entry) const;
    void onAdded();
    void onChanged();
    void onRemoved(qsizetype place);
    void onFound(const HistorySearch::Serials &serials, bool isLast);
    /// Starts over with the rows of the active group and the query. `within`, where given, are rows known to hold all
    /// that the search can find.
    void refresh(Serials within = {});
    void setTotal(int total);
    void replace(Serials serials);
    void removeRow(int row);
    void refreshRole(int role);

    TranscriptionStore &m_store;
    GroupStore &m_groups;
    const Clock &m_clock;
    HistorySearch m_search;
    Serials m_serials;
    int m_count = 0;
    int m_total = 0;
    QString m_query;
    HistorySearch::Serials m_found;
    QString m_copiedId;
};
