// SPDX-License-Identifier: MIT
#include "ui/history/SearchIndex.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr char end = '\xff';
/// Bytes after which a new block begins: some tens of microseconds of searching.
constexpr size_t blockSize = 65536;

QByteArray folded(const QString &text)
{
    return text.toLower().toUtf8();
}

} // namespace

SearchIndex::Search::Search(const SearchIndex &index, const QString &query, std::optional<std::vector<uint32_t>> within)
    : m_index(&index),
      m_query(folded(query)),
      m_within(std::move(within)),
      m_blocksLeft(index.m_blocks.size()),
      m_serialsLeft(index.m_count)
{
}

bool SearchIndex::Search::advance(QDeadlineTimer deadline, std::vector<uint32_t> &serials)
{
    while (m_blocksLeft > 0) {
        const Block &block = m_index->m_blocks[--m_blocksLeft];
        m_serialsLeft -= static_cast<uint32_t>(block.starts.size());
        if (!isWorthSearching(m_serialsLeft)) {
            continue;
        }
        block.find(m_query, m_serialsLeft, serials);
        if (deadline.hasExpired()) {
            break;
        }
    }
    return m_blocksLeft == 0;
}

bool SearchIndex::Search::isWorthSearching(uint32_t firstSerial)
{
    if (!m_within) {
        return true;
    }
    const size_t before = m_nextWithin;
    while (m_nextWithin < m_within->size() && (*m_within)[m_nextWithin] >= firstSerial) {
        ++m_nextWithin;
    }
    return m_nextWithin > before;
}

void SearchIndex::append(const QString &text)
{
    if (m_blocks.empty() || m_blocks.back().text.size() >= blockSize) {
        m_blocks.emplace_back();
    }
    Block &block = m_blocks.back();
    block.starts.push_back(static_cast<uint32_t>(block.text.size()));
    const QByteArray bytes = folded(text);
    block.text.append(bytes.constData(), static_cast<size_t>(bytes.size()));
    block.text.push_back(end);
    if (block.text.size() >= blockSize) {
        block.text.shrink_to_fit();
        block.starts.shrink_to_fit();
    }
    ++m_count;
}

void SearchIndex::remove(uint32_t serial)
{
    for (Block &block : m_blocks) {
        if (serial < block.starts.size()) {
            const auto start = block.starts.begin() + serial;
            const uint32_t length = static_cast<uint32_t>(block.text.find(end, *start)) + 1 - *start;
            block.text.erase(*start, length);
            for (auto later = block.starts.erase(start); later != block.starts.end(); ++later) {
                *later -= length;
            }
            --m_count;
            return;
        }
        serial -= static_cast<uint32_t>(block.starts.size());
    }
}

void SearchIndex::clear()
{
    m_blocks.clear();
    m_count = 0;
}

bool SearchIndex::matches(uint32_t serial, const QString &query) const
{
    for (const Block &block : m_blocks) {
        if (serial < block.starts.size()) {
            const size_t start = block.starts[serial];
            const std::string_view text(block.text.data() + start, block.text.find(end, start) - start);
            const QByteArray wanted = folded(query);
            return text.find(std::string_view(wanted.constData(), static_cast<size_t>(wanted.size()))) !=
                   std::string_view::npos;
        }
        serial -= static_cast<uint32_t>(block.starts.size());
    }
    return false;
}

void SearchIndex::Block::find(QByteArrayView query, uint32_t firstSerial, std::vector<uint32_t> &serials) const
{
    const auto firstFound = static_cast<std::ptrdiff_t>(serials.size());
    const char *const from = text.data();
    const char *const to = from + text.size();
    const char *at = from;
    while (at != to) {
        // Several times as fast as std::string_view::find when little is found.
        const auto *const found = static_cast<const char *>(
            memmem(at, static_cast<size_t>(to - at), query.data(), static_cast<size_t>(query.size())));
        if (found == nullptr) {
            break;
        }
        const auto next = std::ranges::upper_bound(starts, static_cast<uint32_t>(found - from));
        serials.push_back(firstSerial + static_cast<uint32_t>(next - starts.begin()) - 1);
        at = next == starts.end() ? to : from + *next;
    }
    std::reverse(serials.begin() + firstFound, serials.end());
}
