// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A capsule, or a dot. The software renderer rounds the radius of a rectangle down to whole points, which shows on
/// small ones; a painter does not. Main thread only.
class Capsule : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Capsule(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_color = Qt::white;
};
