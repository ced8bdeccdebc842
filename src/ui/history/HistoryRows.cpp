// SPDX-License-Identifier: MIT
#include "ui/history/HistoryRows.h"

#include "store/GroupStore.h"
#include "ui/history/EntryDate.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QDate localDate(const Transcription &entry)
{
    return QDateTime::fromMSecsSinceEpoch(EntryDate::parse(entry.timestamp).time_since_epoch().count()).date();
}

} // namespace

HistoryRows::HistoryRows(TranscriptionStore &store, GroupStore &groups, const Clock &clock)
    : m_store(store), m_groups(groups), m_clock(clock), m_search(store)
{
    connect(&store, &TranscriptionStore::added, this, &HistoryRows::onAdded);
    connect(&store, &TranscriptionStore::changed, this, &HistoryRows::onChanged);
    connect(&store, &TranscriptionStore::removed, this, &HistoryRows::onRemoved);
    connect(&store, &TranscriptionStore::reset, this, [this] {
        m_search.onReset();
        refresh();
    });
    connect(&groups, &GroupStore::activeIdChanged, this, [this] { refresh(); });
    connect(&groups, &GroupStore::groupsChanged, this, [this] { refreshRole(MetaRole); });
    connect(&m_search, &HistorySearch::found, this, &HistoryRows::onFound);
    refresh();
}

int HistoryRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant HistoryRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    // The store has already changed when the views hear that a row is about to go.
    const auto &items = m_store.items();
    const qsizetype place = placeOf(index.row());
    if (place < 0 || place >= items.size()) {
        return {};
    }
    const Transcription &entry = items.at(place);
    switch (role) {
    case EntryIdRole:
        return entry.id;
    case TextRole:
        return entry.text;
    case DayRole:
        return localDate(entry).day();
    case MonthRole:
        return localDate(entry).month();
    case MetaRole:
        return meta(entry);
    case IsCopiedRole:
        return entry.id == m_copiedId;
    case ShowDividerRole:
        return index.row() < m_count - 1;
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryRows::roleNames() const
{
    return {{EntryIdRole, "entryId"},
            {TextRole, "text"},
            {DayRole, "day"},
            {MonthRole, "month"},
            {MetaRole, "meta"},
            {IsCopiedRole, "isCopied"},
            {ShowDividerRole, "showDivider"}};
}

void HistoryRows::setQuery(const QString &query)
{
    if (m_query == query) {
        return;
    }
    const bool isNarrower = !m_query.isEmpty() && query.contains(m_query) && !isSearching();
    m_query = query;
    refresh(isNarrower ? m_serials : std::nullopt);
}

void HistoryRows::setCopied(const QString &id)
{
    m_copiedId = id;
    refreshRole(IsCopiedRole);
}

qsizetype HistoryRows::placeOf(int row) const
{
    return m_serials ? m_search.placeOf((*m_serials)[size_t(row)]) : row;
}

bool HistoryRows::isInGroup(const Transcription &entry) const
{
    return !m_groups.activeId() || entry.categoryId == m_groups.activeId();
}

std::optional<QString> HistoryRows::groupName(const Transcription &entry) const
{
    // The name of the active group would only repeat the selection.
    const auto group = m_groups.activeId() || !entry.categoryId ? std::nullopt : m_groups.group(entry.categoryId);
    return group ? std::optional(group->name) : std::nullopt;
}

QString HistoryRows::meta(const Transcription &entry) const
{
    const QString age = EntryDate::relativeTime(EntryDate::parse(entry.timestamp), m_clock.now());
    const auto name = groupName(entry);
    return name ? age + u" · "_s + *name : age;
}

void HistoryRows::onAdded()
{
    m_search.onAdded();
    if (isSearching()) {
        refresh(); // the search under way has not seen it
        return;
    }
    if (!isInGroup(m_store.items().first())) {
        return;
    }
    if (m_query.isEmpty() || m_search.newestMatches(m_query)) {
        beginInsertRows({}, 0, 0);
        if (m_serials) {
            m_serials->insert(m_serials->begin(), m_search.serialAt(0));
        }
        ++m_count;
        endInsertRows();
        Q_EMIT rowsChanged();
    }
    setTotal(m_total + 1);
}

void HistoryRows::onChanged()
{
    if (m_groups.activeId() || isSearching()) {
        refresh();
    } else {
        refreshRole(MetaRole);
    }
}

void HistoryRows::onRemoved(qsizetype place)
{
    const auto serial = uint32_t(m_store.items().size() - place); // as long as it was there
    m_search.onRemoved(serial);
    if (isSearching()) {
        refresh();
        return;
    }
    if (!m_serials) {
        removeRow(int(place));
        setTotal(m_total - 1);
        return;
    }
    const auto found = std::ranges::find(*m_serials, serial);
    const auto row = found - m_serials->begin();
    const bool isShown = found != m_serials->end();
    for (uint32_t &later : *m_serials) {
        later -= later > serial ? 1 : 0;
    }
    if (isShown) {
        removeRow(int(row));
        setTotal(m_total - 1);
    } else {
        refresh(); // which group it was in nobody knows any more
    }
}

void HistoryRows::refresh(Serials within)
{
    m_search.stop();
    m_found.clear();
    const auto &items = m_store.items();
    Serials inGroup;
    if (m_groups.activeId()) {
        inGroup.emplace();
        for (qsizetype place = 0; place < items.size(); ++place) {
            if (isInGroup(items.at(place))) {
                inGroup->push_back(m_search.serialAt(place));
            }
        }
    }
    const int total = inGroup ? int(inGroup->size()) : int(items.size());
    if (m_query.isEmpty()) {
        replace(std::move(inGroup));
    } else {
        m_search.start(m_query, std::move(within));
    }
    setTotal(total);
    Q_EMIT isSearchingChanged();
}

void HistoryRows::onFound(const HistorySearch::Serials &serials, bool isLast)
{
    std::ranges::copy_if(serials, std::back_inserter(m_found),
                         [this](uint32_t serial) { return isInGroup(m_store.items().at(m_search.placeOf(serial))); });
    // The old rows stay until there is a windowful of new ones.
    if (isLast) {
        replace(std::exchange(m_found, {}));
        Q_EMIT isSearchingChanged();
    } else if (m_found.size() >= 50) {
        replace(m_found);
    }
}

void HistoryRows::setTotal(int total)
{
    if (m_total != total) {
        m_total = total;
        Q_EMIT totalChanged();
    }
}

void HistoryRows::replace(Serials serials)
{
    const int count = serials ? int(serials->size()) : int(m_store.items().size());
    replaceRows(count, [&] {
        m_serials = std::move(serials);
        m_count = count;
    });
    Q_EMIT rowsChanged();
}

void HistoryRows::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    if (m_serials) {
        m_serials->erase(m_serials->begin() + row);
    }
    --m_count;
    endRemoveRows();
    Q_EMIT rowsChanged();
    if (m_count > 0) { // it may be the last now, and have no rule below it any more
        Q_EMIT dataChanged(index(m_count - 1), index(m_count - 1), {ShowDividerRole});
    }
}

void HistoryRows::refreshRole(int role)
{
    if (m_count > 0) {
        Q_EMIT dataChanged(index(0), index(m_count - 1), {role});
    }
}
