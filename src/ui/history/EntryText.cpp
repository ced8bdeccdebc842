// SPDX-License-Identifier: MIT
#include "ui/history/EntryText.h"

#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

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
