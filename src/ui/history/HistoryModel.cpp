// SPDX-License-Identifier: MIT
#include "ui/history/HistoryModel.h"

#include "platform/Pasteboard.h"
#include "store/GroupStore.h"
#include "ui/models/trimmedBlanks.h"

#include <algorithm>

using namespace std::chrono_literals;

HistoryModel::HistoryModel(TranscriptionStore &store, GroupStore &groups, Pasteboard &pasteboard, Clock &clock)
    : m_store(store), m_groups(groups), m_pasteboard(pasteboard), m_clock(clock), m_rows(store, groups, clock)
{
    connect(&m_rows, &HistoryRows::isSearchingChanged, this, &HistoryModel::isSearchingChanged);
    connect(&m_rows, &HistoryRows::totalChanged, this, &HistoryModel::totalChanged);
}

void HistoryModel::setSearch(const QString &search)
{
    if (m_search != search) {
        m_search = search;
        Q_EMIT searchChanged();
        m_rows.setQuery(trimmedBlanks(search));
    }
}

QString HistoryModel::countText() const
{
    return m_rows.total() == 1 ? tr("1 entry") : tr("%n entries", nullptr, m_rows.total());
}

void HistoryModel::setLive(bool isLive)
{
    if (isLive == this->isLive()) {
        return;
    }
    if (isLive) {
        m_rows.refreshAges();
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
        m_rows.setCopied(id);
        m_copiedReset = m_clock.after(3s, [this] { m_rows.setCopied({}); });
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

QList<MoveTarget> HistoryModel::moveTargets(const QString &id) const
{
    const Transcription *const moved = entry(id);
    if (moved == nullptr) {
        return {};
    }
    QList<MoveTarget> targets{{tr("All entries"), {}, moved->categoryId.has_value()}};
    for (const DictationGroup &group : m_groups.groups()) {
        targets.append({group.name, group.id, moved->categoryId != group.id});
    }
    return targets;
}

const Transcription *HistoryModel::entry(const QString &id) const
{
    const auto &items = m_store.items();
    const auto found = std::ranges::find(items, id, &Transcription::id);
    return found == items.end() ? nullptr : &*found;
}

void HistoryModel::startMinute()
{
    const auto now = m_clock.now();
    const auto next = std::chrono::floor<std::chrono::minutes>(now) + 1min;
    m_minute = m_clock.after(next - now, [this] {
        m_rows.refreshAges();
        startMinute();
    });
}
