// SPDX-License-Identifier: MIT
#include "ui/EntryText.h"

#include <QTextBlockFormat>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// A text up to this length is laid out at once; what is longer comes in pieces that fit into a frame.
constexpr qsizetype longestPiece = 4000;
constexpr qsizetype usualPiece = 800;

/// How far the first sentence that ends in the text goes; else the first word, else all of it.
qsizetype firstEnd(const QString &text)
{
    for (const auto unit : {QTextBoundaryFinder::Sentence, QTextBoundaryFinder::Word}) {
        QTextBoundaryFinder finder(unit, text);
        const qsizetype end = finder.toNextBoundary();
        if (end > 0 && end < text.size()) {
            return end;
        }
    }
    return text.size();
}

void appendPieces(const QString &paragraph, QStringList &pieces)
{
    qsizetype start = 0;
    while (paragraph.size() - start > longestPiece) {
        const qsizetype usualEnd = start + usualPiece;
        const qsizetype end = usualEnd + firstEnd(paragraph.mid(usualEnd, usualPiece));
        pieces.append(paragraph.mid(start, end - start).trimmed());
        start = end;
    }
    pieces.append(paragraph.mid(start).trimmed());
}

} // namespace

void EntryText::setDocument(QQuickTextDocument *document)
{
    if (m_document != document) {
        m_document = document;
        fill();
        Q_EMIT documentChanged();
    }
}

void EntryText::setText(const QString &text)
{
    if (m_text != text) {
        m_text = text;
        fill();
        Q_EMIT textChanged();
    }
}

QStringList EntryText::pieces(const QString &text)
{
    if (text.size() <= longestPiece) {
        return {text};
    }
    QStringList pieces;
    for (const QString &paragraph : text.split(u'\n')) {
        appendPieces(paragraph, pieces);
    }
    return pieces;
}

void EntryText::fill()
{
    if (!m_document) {
        return;
    }
    QTextDocument *const document = m_document->textDocument();
    document->setUndoRedoEnabled(false);
    document->setDocumentMargin(0);
    QTextBlockFormat format;
    format.setLineHeight(m_lineSpacing, QTextBlockFormat::LineDistanceHeight);
    QTextCursor cursor(document);
    cursor.beginEditBlock(); // one layout for all of it
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockFormat(format);
    cursor.insertText(m_text);
    cursor.endEditBlock();
}
