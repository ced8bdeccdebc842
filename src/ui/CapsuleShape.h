// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A capsule, or a dot. The software renderer rounds the radius of a rectangle down to whole points, which shows on
/// small ones; a painter does not. One point of the item is left free all around: between pixels, at a scale of 1.5,
/// its edges are cut. Main thread only.
class CapsuleShape : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit CapsuleShape(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_color = Qt::white;
};
