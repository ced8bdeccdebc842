// SPDX-License-Identifier: MIT
#include "platform/Screens.h"

#include <algorithm>

namespace {

/// The right and lower edges belong to the neighbours, which begin there.
bool holds(const QRectF &frame, QPointF point)
{
    return point.x() >= frame.left() && point.x() < frame.right() && point.y() >= frame.top() &&
           point.y() < frame.bottom();
}

} // namespace

std::optional<Screen> Screens::underPointer() const
{
    const QList<Screen> all = screens();
    if (all.isEmpty()) {
        return std::nullopt;
    }
    const QPointF pointer = mouseLocation();
    const auto holding = std::ranges::find_if(all, [&](const Screen &screen) { return holds(screen.frame, pointer); });
    return holding == all.end() ? all.first() : *holding;
}
