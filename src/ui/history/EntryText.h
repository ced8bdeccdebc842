// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickTextDocument>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Fills the document of a text view with plain text set with extra space between its lines, which Qt Quick's
/// selectable text views can't do by themselves. Main thread only.
class EntryText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// Points added to each line, the last one included.
    Q_PROPERTY(qreal lineSpacing MEMBER m_lineSpacing NOTIFY lineSpacingChanged)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    const QString &text() const { return m_text; }
    void setText(const QString &text);

Q_SIGNALS:
    void documentChanged();
    void textChanged();
    void lineSpacingChanged();

private:
    void fill();

    QPointer<QQuickTextDocument> m_document;
    QString m_text;
    qreal m_lineSpacing = 0;
};
