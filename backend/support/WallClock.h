// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>

/// Seconds since the epoch.
using WallClock = std::function<qint64()>;

inline WallClock systemClock()
{
    return [] {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return static_cast<qint64>(std::chrono::duration_cast<std::chrono::seconds>(now).count());
    };
}
