// SPDX-License-Identifier: MIT
#pragma once

#include "ui/history/SearchIndex.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

class TranscriptionStore;

/// Searches the texts of a store, the newest first. The texts are indexed and searched in slices between which the
/// window stays alive. Its owner tells it of every change of the store; a search that is under way then is to be
/// started anew. Main thread only.
class HistorySearch : public QObject {
    Q_OBJECT

public:
    /// Entries by their serials (SearchIndex), the newest first.
    using Serials = std::vector<uint32_t>;

    /// `store` outlives the search.
    explicit HistorySearch(const TranscriptionStore &store);

    bool isRunning() const { return m_running.has_value(); }
    /// Starts a search in place of the one under way; its first results come before this returns. `within`, where
    /// given, are entries known to hold all that can be found.
    void start(const QString &query, std::optional<Serials> within);
    void stop() { m_running.reset(); }
    bool newestMatches(const QString &query) const;

    void onAdded();
    void onRemoved(uint32_t serial);
    void onReset();

    /// The serial of the entry at a place in the store, and back.
    uint32_t serialAt(qsizetype place) const;
    qsizetype placeOf(uint32_t serial) const;

Q_SIGNALS:
    /// What a slice has found; the last one of a search `isLast`, by when it is not running any more.
    void found(const HistorySearch::Serials &serials, bool isLast);

private:
    void work();
    void indexTexts(QDeadlineTimer deadline);
    void searchOn(QDeadlineTimer deadline);

    const TranscriptionStore &m_store;
    SearchIndex m_index;
    std::optional<SearchIndex::Search> m_running;
    QTimer m_worker;
};
