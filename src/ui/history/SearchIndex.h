// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The texts of a history in lower case, ready to be searched. An entry is named by its serial, its place counted from
/// the oldest, which new entries don't change. It takes about one byte for each letter of Latin text.
class SearchIndex {
public:
    /// One search, newest entries first, that can be interrupted. The index must not change between the steps.
    class Search {
    public:
        /// `within`, where given, are the serials that an earlier search found, newest first, for a part of the query:
        /// only their neighbourhood is searched.
        Search(const SearchIndex &index, const QString &query, std::optional<std::vector<uint32_t>> within = {});

        /// Appends the serials found until the deadline; at least one step is made. True when all has been searched.
        bool advance(QDeadlineTimer deadline, std::vector<uint32_t> &serials);

    private:
        bool isWorthSearching(uint32_t firstSerial);

        const SearchIndex *m_index;
        QByteArray m_query;
        std::optional<std::vector<uint32_t>> m_within;
        size_t m_nextWithin = 0;
        size_t m_blocksLeft;
        uint32_t m_serialsLeft;
    };

    uint32_t count() const { return m_count; }

    /// Adds the newest entry.
    void append(const QString &text);
    void remove(uint32_t serial);
    void clear();

    bool matches(uint32_t serial, const QString &query) const;

private:
    /// Some entries in one piece of memory, so that one call searches many.
    struct Block {
        /// Each text ends with a byte that UTF-8 has no use for.
        std::string text;
        /// Where each text starts.
        std::vector<uint32_t> starts;

        void find(QByteArrayView query, uint32_t firstSerial, std::vector<uint32_t> &serials) const;
    };

    std::vector<Block> m_blocks;
    uint32_t m_count = 0;
};
