// SPDX-License-Identifier: MIT
#include "ui/EntryText.h"

#include <QTextBlockFormat>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// Laying out 4,000 characters takes about two milliseconds.
constexpr qsizetype longestPiece = 4000;
constexpr qsizetype usualPiece = 1500;

/// The end of the first sentence that ends after `from`, else of the text.
qsizetype sentenceEnd(QTextBoundaryFinder &sentences, QTextBoundaryFinder &words, qsizetype from, qsizetype size)
{
    sentences.setPosition(from);
    const qsizetype end = sentences.toNextBoundary();
    if (end > 0 && end - from <= usualPiece) {
        return end;
    }
    words.setPosition(from);
    const qsizetype word = words.toNextBoundary();
    return word > 0 ? word : size;
}

void appendPieces(const QString &paragraph, QStringList &pieces)
{
    QTextBoundaryFinder sentences(QTextBoundaryFinder::Sentence, paragraph);
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, paragraph);
    qsizetype start = 0;
    while (paragraph.size() - start > longestPiece) {
        const qsizetype end = sentenceEnd(sentences, words, start + usualPiece, paragraph.size());
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
