// SPDX-License-Identifier: MIT
#include "ui/style/RoundedShape.h"

#include <QPainter>

#include <algorithm>

RoundedShape::RoundedShape(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &RoundedShape::changed, this, [this] { update(); });
}

void RoundedShape::paint(QPainter *painter)
{
    const qreal inset = margin() + m_borderWidth / 2; // the pen's middle runs along the path
    const QRectF shape = QRectF(QPointF(), size()).adjusted(inset, inset, -inset, -inset);
    const qreal radius =
        std::clamp<qreal>(m_radius - m_borderWidth / 2, 0, std::min(shape.width(), shape.height()) / 2);
    painter->setPen(m_borderWidth > 0 ? QPen(m_borderColor, m_borderWidth) : QPen(Qt::NoPen));
    painter->setBrush(m_color);
    painter->drawRoundedRect(shape, radius, radius);
}
