// SPDX-License-Identifier: MIT
#include "ui/history/HistoryModel.h"

#include "platform/Pasteboard.h"
#include "store/GroupStore.h"
#include "ui/history/EntryDate.h"
#include "ui/windows/trimmedBlanks.h"

#include <QDateTime>
#include <QVariantMap>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Work in one go: with what the window then draws it fits into a frame of 16 ms.
constexpr auto slice = 4ms;

QDate localDate(const Transcription &entry)
{
    return QDateTime::fromMSecsSinceEpoch(EntryDate::parse(entry.timestamp).time_since_epoch().count()).date();
}

} // namespace

HistoryModel::HistoryModel(TranscriptionStore &store, GroupStore &groups, Pasteboard &pasteboard, Clock &clock)
    : m_store(store), m_groups(groups), m_pasteboard(pasteboard), m_clock(clock)
{
    connect(&store, &TranscriptionStore::added, this, &HistoryModel::onAdded);
    connect(&store, &TranscriptionStore::changed, this, &HistoryModel::onChanged);
    connect(&store, &TranscriptionStore::removed, this, &HistoryModel::onRemoved);
    connect(&store, &TranscriptionStore::reset, this, [this] {
        m_index.clear();
        refresh();
    });
    connect(&groups, &GroupStore::activeIdChanged, this, [this] { refresh(); });
    connect(&groups, &GroupStore::groupsChanged, this, [this] { refreshRole(MetaRole); });
    connect(&m_worker, &QTimer::timeout, this, &HistoryModel::work);
    refresh();
    m_worker.start(0ms);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    // The store has already changed when the views hear that a row is about to go.
    const auto &items = m_store.items();
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || placeOf(index.row()) < 0 ||
        placeOf(index.row()) >= items.size()) {
        return {};
    }
    const Transcription &shown = entry(index.row());
    switch (role) {
    case EntryIdRole:
        return shown.id;
    case TextRole:
        return shown.text;
    case DayRole:
        return localDate(shown).day();
    case MonthRole:
        return localDate(shown).month();
    case MetaRole:
        return meta(shown);
    case IsCopiedRole:
        return shown.id == m_copiedId;
    case ShowDividerRole:
        return index.row() < m_count - 1;
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryModel::roleNames() const
{
    return {{EntryIdRole, "entryId"},
            {TextRole, "text"},
            {DayRole, "day"},
            {MonthRole, "month"},
            {MetaRole, "meta"},
            {IsCopiedRole, "isCopied"},
            {ShowDividerRole, "showDivider"}};
}

void HistoryModel::setSearch(const QString &search)
{
    if (m_search == search) {
        return;
    }
    m_search = search;
    Q_EMIT searchChanged();
    const QString query = trimmedBlanks(search);
    if (m_query != query) {
        const bool isNarrower = !m_query.isEmpty() && query.contains(m_query) && !isSearching();
        m_query = query;
        refresh(isNarrower ? m_rows : std::nullopt);
    }
}

QString HistoryModel::countText() const
{
    return u"%1 %2"_s.arg(m_total).arg(m_total == 1 ? u"entry" : u"entries");
}

void HistoryModel::setLive(bool isLive)
{
    if (isLive == this->isLive()) {
        return;
    }
    if (isLive) {
        refreshRole(MetaRole);
        startMinute();
    } else {
        m_minute.reset();
    }
    Q_EMIT isLiveChanged();
}

void HistoryModel::copy(const QString &id)
{
    if (const Transcription *copied = entry(id)) {
        copyText(copied->text);
        setCopied(id);
        m_copiedReset = m_clock.after(3s, [this] { setCopied({}); });
    }
}

void HistoryModel::copyText(const QString &text)
{
    m_pasteboard.clear();
    m_pasteboard.setString(text);
}

void HistoryModel::remove(const QString &id)
{
    if (entry(id) != nullptr) {
        m_store.remove(id);
    }
}

void HistoryModel::move(const QString &id, const QString &groupId)
{
    m_store.move(id, groupId.isEmpty() ? std::nullopt : std::optional(groupId));
}

QVariantList HistoryModel::moveTargets(const QString &id) const
{
    const Transcription *const moved = entry(id);
    if (moved == nullptr) {
        return {};
    }
    const auto &current = moved->categoryId;
    const auto target = [](const QString &name, const QString &groupId, bool isEnabled) {
        return QVariantMap{{u"name"_s, name}, {u"groupId"_s, groupId}, {u"isEnabled"_s, isEnabled}};
    };
    QVariantList targets{target(u"All entries"_s, {}, current.has_value())};
    for (const DictationGroup &group : m_groups.groups()) {
        targets.append(target(group.name, group.id, current != group.id));
    }
    return targets;
}

qsizetype HistoryModel::placeOf(int row) const
{
    return m_rows ? m_store.items().size() - 1 - qsizetype((*m_rows)[size_t(row)]) : row;
}

const Transcription &HistoryModel::entry(int row) const
{
    return m_store.items().at(placeOf(row));
}

const Transcription *HistoryModel::entry(const QString &id) const
{
    const auto &items = m_store.items();
    const auto found = std::ranges::find(items, id, &Transcription::id);
    return found == items.end() ? nullptr : &*found;
}

uint32_t HistoryModel::serialOf(qsizetype place) const
{
    return uint32_t(m_store.items().size() - 1 - place);
}

bool HistoryModel::isInGroup(const Transcription &entry) const
{
    return !m_groups.activeId() || entry.categoryId == m_groups.activeId();
}

std::optional<QString> HistoryModel::groupName(const Transcription &entry) const
{
    // The name of the active group would only repeat the selection.
    const auto group = m_groups.activeId() || !entry.categoryId ? std::nullopt : m_groups.group(entry.categoryId);
    return group ? std::optional(group->name) : std::nullopt;
}

QString HistoryModel::meta(const Transcription &entry) const
{
    const QString age = EntryDate::relativeTime(EntryDate::parse(entry.timestamp), m_clock.now());
    const auto name = groupName(entry);
    return name ? age + u" · "_s + *name : age;
}

void HistoryModel::onAdded()
{
    const Transcription &added = m_store.items().first();
    const uint32_t serial = serialOf(0);
    if (m_index.count() == serial) {
        m_index.append(added.text);
    } else {
        m_worker.start(0ms);
    }
    if (!isInGroup(added)) {
        return;
    }
    if (isSearching()) {
        refresh(); // the search under way has not seen it
        return;
    }
    if (m_query.isEmpty() || m_index.matches(serial, m_query)) {
        beginInsertRows({}, 0, 0);
        if (m_rows) {
            m_rows->insert(m_rows->begin(), serial);
        }
        ++m_count;
        endInsertRows();
        Q_EMIT rowsChanged();
    }
    setTotal(m_total + 1);
}

void HistoryModel::onChanged(qsizetype place)
{
    if (m_groups.activeId() || isSearching()) {
        refresh();
    } else {
        refreshRole(MetaRole);
    }
    Q_UNUSED(place)
}

void HistoryModel::onRemoved(qsizetype place)
{
    const auto serial = uint32_t(m_store.items().size() - place);
    if (serial < m_index.count()) {
        m_index.remove(serial);
    }
    if (!m_rows && !isSearching()) {
        removeRow(int(place));
        setTotal(m_total - 1);
    } else if (isSearching()) {
        refresh();
    } else {
        const auto found = std::ranges::find(*m_rows, serial);
        const auto row = found - m_rows->begin();
        const bool isShown = found != m_rows->end();
        for (uint32_t &later : *m_rows) {
            later -= later > serial ? 1 : 0;
        }
        if (isShown) {
            removeRow(int(row));
            setTotal(m_total - 1);
        } else {
            refresh(); // which group it was in nobody knows any more
        }
    }
}

void HistoryModel::refresh(Rows within)
{
    m_running.reset();
    m_found.clear();
    const auto &items = m_store.items();
    Rows inGroup;
    if (m_groups.activeId()) {
        inGroup.emplace();
        for (qsizetype place = 0; place < items.size(); ++place) {
            if (isInGroup(items.at(place))) {
                inGroup->push_back(serialOf(place));
            }
        }
    }
    const int total = inGroup ? int(inGroup->size()) : int(items.size());
    if (m_query.isEmpty()) {
        replace(std::move(inGroup));
    } else {
        indexTexts(QDeadlineTimer::Forever);
        m_running.emplace(m_index, m_query, std::move(within));
        searchOn(QDeadlineTimer(slice));
    }
    setTotal(total);
    Q_EMIT isSearchingChanged();
}

void HistoryModel::setTotal(int total)
{
    if (m_total != total) {
        m_total = total;
        Q_EMIT totalChanged();
    }
}

void HistoryModel::replace(Rows rows)
{
    const int count = rows ? int(rows->size()) : int(m_store.items().size());
    replaceRows(count, [&] {
        m_rows = std::move(rows);
        m_count = count;
    });
    Q_EMIT rowsChanged();
}

void HistoryModel::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    if (m_rows) {
        m_rows->erase(m_rows->begin() + row);
    }
    --m_count;
    endRemoveRows();
    Q_EMIT rowsChanged();
    if (m_count > 0) { // it may be the last now, and have no rule below it any more
        Q_EMIT dataChanged(index(m_count - 1), index(m_count - 1), {ShowDividerRole});
    }
}

void HistoryModel::refreshRole(int role)
{
    if (m_count > 0) {
        Q_EMIT dataChanged(index(0), index(m_count - 1), {role});
    }
}

void HistoryModel::setCopied(const QString &id)
{
    m_copiedId = id;
    refreshRole(IsCopiedRole);
}

void HistoryModel::startMinute()
{
    const auto now = m_clock.now();
    const auto next = std::chrono::floor<std::chrono::minutes>(now) + 1min;
    m_minute = m_clock.after(next - now, [this] {
        refreshRole(MetaRole);
        startMinute();
    });
}

void HistoryModel::work()
{
    const QDeadlineTimer deadline(slice);
    indexTexts(deadline);
    if (m_running && !deadline.hasExpired()) {
        searchOn(deadline);
        Q_EMIT isSearchingChanged();
    }
    if (!m_running && m_index.count() == m_store.items().size()) {
        m_worker.stop();
    }
}

void HistoryModel::indexTexts(QDeadlineTimer deadline)
{
    const auto &items = m_store.items();
    while (m_index.count() < items.size()) {
        m_index.append(items.at(items.size() - 1 - qsizetype(m_index.count())).text);
        if (m_index.count() % 64 == 0 && deadline.hasExpired()) {
            return;
        }
    }
}

void HistoryModel::searchOn(QDeadlineTimer deadline)
{
    const size_t before = m_found.size();
    const bool isDone = m_running->advance(deadline, m_found);
    if (m_groups.activeId()) {
        const auto &items = m_store.items();
        const auto isElsewhere = [&](uint32_t serial) {
            return !isInGroup(items.at(items.size() - 1 - qsizetype(serial)));
        };
        const auto from = m_found.begin() + std::ptrdiff_t(before);
        m_found.erase(std::remove_if(from, m_found.end(), isElsewhere), m_found.end());
    }
    if (isDone) {
        m_running.reset();
        replace(std::exchange(m_found, {}));
    } else {
        m_worker.start(0ms);
        // The old rows stay until there is a windowful of new ones.
        if (m_found.size() >= 50) {
            replace(m_found);
        }
    }
}
