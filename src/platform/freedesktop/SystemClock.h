// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

/// The real clock, over QTimer. Timers run with millisecond precision and don't count time spent in suspend.
class SystemClock : public Clock {
public:
    Instant now() const override;
    [[nodiscard]] std::unique_ptr<Timer> after(Duration delay, Callback callback) override;
    [[nodiscard]] std::unique_ptr<Timer> every(Duration period, Callback callback) override;
};
