// SPDX-License-Identifier: MIT
#include "ui/CapsuleShape.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal margin = 1;

} // namespace

CapsuleShape::CapsuleShape(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void CapsuleShape::setColor(const QColor &color)
{
    if (m_color != color) {
        m_color = color;
        update();
        Q_EMIT colorChanged();
    }
}

void CapsuleShape::paint(QPainter *painter)
{
    const QRectF shape = QRectF(QPointF(), size()).adjusted(margin, margin, -margin, -margin);
    const qreal radius = std::min(shape.width(), shape.height()) / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_color);
    painter->drawRoundedRect(shape, radius, radius);
}
