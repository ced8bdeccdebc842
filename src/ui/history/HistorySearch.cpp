// SPDX-License-Identifier: MIT
#include "ui/history/HistorySearch.h"

#include "store/TranscriptionStore.h"

using namespace std::chrono_literals;

namespace {

// Work in one go: with what the window then draws it fits into a frame of 16 ms.
constexpr auto slice = 4ms;

} // namespace

HistorySearch::HistorySearch(const TranscriptionStore &store) : m_store(store)
{
    connect(&m_worker, &QTimer::timeout, this, &HistorySearch::work);
    m_worker.start(0ms);
}

void HistorySearch::start(const QString &query, std::optional<Serials> within)
{
    indexTexts(QDeadlineTimer::Forever);
    m_running.emplace(m_index, query, std::move(within));
    searchOn(QDeadlineTimer(slice));
}

bool HistorySearch::newestMatches(const QString &query) const
{
    return m_index.matches(serialAt(0), query);
}

uint32_t HistorySearch::serialAt(qsizetype place) const
{
    return uint32_t(m_store.items().size() - 1 - place);
}

qsizetype HistorySearch::placeOf(uint32_t serial) const
{
    return m_store.items().size() - 1 - qsizetype(serial);
}

void HistorySearch::onAdded()
{
    // Texts that are still to be indexed come first.
    if (m_index.count() == serialAt(0)) {
        m_index.append(m_store.items().first().text);
    }
}

void HistorySearch::onRemoved(uint32_t serial)
{
    if (serial < m_index.count()) {
        m_index.remove(serial);
    }
}

void HistorySearch::onReset()
{
    stop();
    m_index.clear();
    m_worker.start(0ms);
}

void HistorySearch::work()
{
    const QDeadlineTimer deadline(slice);
    indexTexts(deadline);
    if (m_running && !deadline.hasExpired()) {
        searchOn(deadline);
    }
    if (!m_running && m_index.count() == m_store.items().size()) {
        m_worker.stop();
    }
}

void HistorySearch::indexTexts(QDeadlineTimer deadline)
{
    const auto &items = m_store.items();
    while (m_index.count() < items.size()) {
        m_index.append(items.at(placeOf(m_index.count())).text);
        if (m_index.count() % 64 == 0 && deadline.hasExpired()) {
            return;
        }
    }
}

void HistorySearch::searchOn(QDeadlineTimer deadline)
{
    Serials serials;
    const bool isLast = m_running->advance(deadline, serials);
    if (isLast) {
        stop();
    } else {
        m_worker.start(0ms);
    }
    Q_EMIT found(serials, isLast);
}
