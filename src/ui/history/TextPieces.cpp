// SPDX-License-Identifier: MIT
#include "ui/history/TextPieces.h"

#include <QTextLayout>

#include <utility>

using namespace std::chrono_literals;

namespace {

// Work in one go: with what the window then draws it fits into a frame of 16 ms.
constexpr auto slice = 4ms;
// So much text is laid out in a fraction of a frame.
constexpr qsizetype longestPiece = 900;

} // namespace

TextPieces::TextPieces(QObject *parent) : InPlaceListModel(parent)
{
    connect(&m_worker, &QTimer::timeout, this, &TextPieces::work);
}

int TextPieces::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_pieces.size());
}

QVariant TextPieces::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Piece &piece = m_pieces[size_t(index.row())];
    switch (role) {
    case StartRole:
        return piece.start;
    case IsFirstRole:
        return index.row() == 0;
    case ContentRole: {
        // The line break between two pieces is their edge.
        const bool isLast = piece.start + piece.length == m_text.size();
        const bool endsInBreak = m_text.at(piece.start + piece.length - 1) == u'\n';
        return m_text.mid(piece.start, piece.length - (endsInBreak && !isLast ? 1 : 0));
    }
    case HeightRole:
        return piece.height;
    default:
        return {};
    }
}

QHash<int, QByteArray> TextPieces::roleNames() const
{
    return {{StartRole, "start"}, {IsFirstRole, "isFirst"}, {ContentRole, "content"}, {HeightRole, "pieceHeight"}};
}

void TextPieces::setText(const QString &text)
{
    if (m_text == text) {
        return;
    }
    beginResetModel();
    m_text = text;
    m_pieces.clear();
    endResetModel();
    m_isReplacing = false;
    m_end = 0;
    m_cutHeight = 0;
    work();
    Q_EMIT changed();
}

void TextPieces::setWidth(qreal width)
{
    if (m_width == width) {
        return;
    }
    m_width = width;
    m_isReplacing = !m_pieces.empty();
    m_next.clear();
    m_end = 0;
    m_cutHeight = 0;
    work();
    Q_EMIT changed();
}

qreal TextPieces::restHeight() const
{
    return m_isReplacing || m_end == 0 ? 0 : m_cutHeight * qreal(m_text.size() - m_end) / qreal(m_end);
}

void TextPieces::componentComplete()
{
    m_isComplete = true;
    work();
}

void TextPieces::work()
{
    m_worker.stop();
    if (!m_isComplete || m_width <= 0 || m_end == m_text.size()) {
        return;
    }
    const QDeadlineTimer deadline(slice);
    std::vector<Piece> pieces;
    while (m_end < m_text.size() && !deadline.hasExpired()) {
        pieces.push_back(cut(m_end));
        m_end += pieces.back().length;
        m_cutHeight += pieces.back().height;
    }
    append(std::move(pieces));
    if (m_end < m_text.size()) {
        m_worker.start(0ms);
    }
    Q_EMIT restHeightChanged();
}

TextPieces::Piece TextPieces::cut(qsizetype start) const
{
    QString text = m_text.mid(start, longestPiece);
    text.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, m_font);
    // As the views of the pieces wrap and measure.
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    Piece piece{start, 0, 0};
    Piece withLastLine = piece;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(m_width);
        piece = withLastLine;
        withLastLine.length += line.textLength();
        withLastLine.height += line.height() + m_lineSpacing;
    }
    layout.endLayout();
    // More text may go into the last line, unless there is no more.
    const bool isLast = start + text.size() == m_text.size();
    return isLast || piece.length == 0 ? withLastLine : piece;
}

void TextPieces::append(std::vector<Piece> pieces)
{
    if (!m_isReplacing) {
        const int before = rowCount();
        beginInsertRows({}, before, before + int(pieces.size()) - 1);
        m_pieces.insert(m_pieces.end(), pieces.begin(), pieces.end());
        endInsertRows();
        return;
    }
    m_next.insert(m_next.end(), pieces.begin(), pieces.end());
    if (m_end == m_text.size()) {
        m_isReplacing = false;
        replaceRows(int(m_next.size()), [this] { m_pieces = std::exchange(m_next, {}); });
    }
}
