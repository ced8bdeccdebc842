// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal> // before <coroutine>, which moc can't read by itself

#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>

/// Time as the program sees it. Main thread only; every callback runs on the main thread, from the event loop.
class Clock {
public:
    /// Wall-clock time in UTC, to the millisecond.
    using Instant = std::chrono::sys_time<std::chrono::milliseconds>;
    using Duration = std::chrono::milliseconds;
    using Callback = std::function<void()>;

    /// A pending call. Destroying it cancels the call; a callback may destroy its own timer.
    class Timer {
    public:
        Timer() = default;
        Timer(const Timer &) = delete;
        Timer &operator=(const Timer &) = delete;
        virtual ~Timer() = default;
    };

    /// What `sleep` returns: awaiting it suspends the coroutine; destroying the coroutine cancels the sleep.
    class Sleep {
    public:
        Sleep(Clock &clock, Duration duration) : m_clock(clock), m_duration(duration) {}
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> coroutine)
        {
            m_timer = m_clock.after(m_duration, [coroutine] { coroutine.resume(); });
        }
        void await_resume() const noexcept {}

    private:
        Clock &m_clock;
        Duration m_duration;
        std::unique_ptr<Timer> m_timer;
    };

    virtual ~Clock() = default;

    virtual Instant now() const = 0;

    /// Calls back once, `delay` from now.
    [[nodiscard]] virtual std::unique_ptr<Timer> after(Duration delay, Callback callback) = 0;

    /// Calls back every `period`, first one period from now.
    [[nodiscard]] virtual std::unique_ptr<Timer> every(Duration period, Callback callback) = 0;

    /// `co_await clock.sleep(400ms)` suspends the calling coroutine, not the thread.
    [[nodiscard]] Sleep sleep(Duration duration) { return Sleep(*this, duration); }
};
