// SPDX-License-Identifier: MIT
#pragma once

#include "ui/models/InPlaceListModel.h"

#include <QDeadlineTimer>
#include <QFont>
#include <QQmlParserStatus>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <vector>

/// A very long text in pieces that can be laid out one by one. They are cut where a line ends at the text's width, so
/// nothing shows of them. Main thread only. Cutting goes on in slices between frames; after a change of the width the
/// old pieces stay until all new ones are known.
class TextPieces : public InPlaceListModel, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    /// Of the lines, in points.
    Q_PROPERTY(qreal width READ width WRITE setWidth NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    /// Points between two lines.
    Q_PROPERTY(qreal lineSpacing MEMBER m_lineSpacing NOTIFY changed)
    /// How high the text is that has not been cut yet, as far as can be told.
    Q_PROPERTY(qreal restHeight READ restHeight NOTIFY restHeightChanged)

public:
    /// Of a piece: its place in the text, whether that is the beginning, its text, and its height with the space below.
    enum Role { StartRole = Qt::UserRole, IsFirstRole, ContentRole, HeightRole };

    explicit TextPieces(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QString &text() const { return m_text; }
    void setText(const QString &text);
    qreal width() const { return m_width; }
    void setWidth(qreal width);
    qreal restHeight() const;

Q_SIGNALS:
    void changed();
    void restHeightChanged();

private:
    struct Piece {
        qsizetype start = 0;
        qsizetype length = 0;
        qreal height = 0;
    };

    void classBegin() override {}
    void componentComplete() override;
    /// Cuts for the length of a slice; what is left is cut after the next frame.
    void work();
    Piece cut(qsizetype start) const;
    void append(std::vector<Piece> pieces);

    QString m_text;
    qreal m_width = 0;
    QFont m_font;
    qreal m_lineSpacing = 0;
    bool m_isComplete = false;
    std::vector<Piece> m_pieces;
    /// Pieces of a new width, until they are all there.
    std::vector<Piece> m_next;
    bool m_isReplacing = false;
    qsizetype m_end = 0;   ///< how far the text is cut
    qreal m_cutHeight = 0; ///< and how high that part is
    QTimer m_worker;
};
