// SPDX-License-Identifier: MIT
#include "ui/Capsule.h"

#include <QPainter>

#include <algorithm>

Capsule::Capsule(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void Capsule::setColor(const QColor &color)
{
    if (m_color != color) {
        m_color = color;
        update();
        Q_EMIT colorChanged();
    }
}

void Capsule::paint(QPainter *painter)
{
    const qreal radius = std::min(width(), height()) / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_color);
    painter->drawRoundedRect(QRectF(QPointF(), size()), radius, radius);
}
