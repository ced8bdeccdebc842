// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A rectangle with rounded corners, smooth at every scale. The software renderer's own has a radius of whole points
/// and ragged corners at a scale such as 1.5; a painter's has not. `margin` of the item is left free all around:
/// between pixels, its edges are cut. Main thread only. Measures in points.
class RoundedShape : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// Half the shorter side at the most.
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
    /// Inside the shape; 0 for none.
    Q_PROPERTY(qreal borderWidth MEMBER m_borderWidth NOTIFY changed)
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed)
    Q_PROPERTY(qreal margin READ margin CONSTANT)

public:
    explicit RoundedShape(QQuickItem *parent = nullptr);

    /// A whole number of pixels at a scale of 1.5 as well.
    static qreal margin() { return 2; }
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor m_color = Qt::white;
    qreal m_radius = 0;
    qreal m_borderWidth = 0;
    QColor m_borderColor = Qt::black;
};
