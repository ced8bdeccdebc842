// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

#include <algorithm>
#include <list>
#include <utility>

/// A clock that stands still until the test advances it; timers due on the way fire in order, at their own time.
class FakeClock : public Clock {
public:
    Instant now() const override { return m_now; }

    [[nodiscard]] std::unique_ptr<Timer> after(Duration delay, Callback callback) override
    {
        return add(delay, Duration::zero(), std::move(callback));
    }

    [[nodiscard]] std::unique_ptr<Timer> every(Duration period, Callback callback) override
    {
        return add(period, period, std::move(callback));
    }

    void advance(Duration duration)
    {
        const Instant end = m_now + duration;
        while (FakeTimer *next = dueBy(end)) {
            m_now = next->due;
            // The callback may destroy its timer, so everything needed of it is taken first.
            const Callback callback = next->callback;
            if (next->period > Duration::zero()) {
                next->due += next->period;
            } else {
                next->isPending = false;
            }
            callback();
        }
        m_now = end;
    }

    void set(Instant now) { m_now = now; }

    /// Timers that will still fire.
    int pending() const
    {
        return int(std::count_if(m_timers.begin(), m_timers.end(), [](const auto *timer) { return timer->isPending; }));
    }

private:
    struct FakeTimer : Timer {
        explicit FakeTimer(FakeClock &owner) : clock(owner) { clock.m_timers.push_back(this); }
        FakeTimer(const FakeTimer &) = delete;
        FakeTimer &operator=(const FakeTimer &) = delete;
        ~FakeTimer() override { clock.m_timers.remove(this); }

        FakeClock &clock;
        Instant due;
        Duration period{};
        Callback callback;
        bool isPending = true;
    };

    std::unique_ptr<Timer> add(Duration delay, Duration period, Callback callback)
    {
        auto timer = std::make_unique<FakeTimer>(*this);
        timer->due = m_now + delay;
        timer->period = period;
        timer->callback = std::move(callback);
        return timer;
    }

    FakeTimer *dueBy(Instant end)
    {
        FakeTimer *next = nullptr;
        for (FakeTimer *timer : m_timers) {
            if (timer->isPending && timer->due <= end && (next == nullptr || timer->due < next->due)) {
                next = timer;
            }
        }
        return next;
    }

    Instant m_now = std::chrono::sys_days(std::chrono::year(2026) / 1 / 31) + std::chrono::hours(12);
    std::list<FakeTimer *> m_timers;
};
