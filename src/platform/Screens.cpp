// SPDX-License-Identifier: MIT
#include "platform/Screens.h"

#include <algorithm>

std::optional<Screen> Screens::underPointer() const
{
    const QList<Screen> all = screens();
    if (all.isEmpty()) {
        return std::nullopt;
    }
    const QPointF pointer = mouseLocation();
    const auto holding =
        std::ranges::find_if(all, [&](const Screen &screen) { return screen.frame.contains(pointer); });
    return holding == all.end() ? all.first() : *holding;
}
