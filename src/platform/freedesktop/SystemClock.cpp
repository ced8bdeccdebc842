// SPDX-License-Identifier: MIT
#include "platform/freedesktop/SystemClock.h"

#include <QTimer>

#include <utility>

namespace {

class SystemTimer : public Clock::Timer {
public:
    SystemTimer(Clock::Duration interval, bool singleShot, Clock::Callback callback) : m_timer(new QTimer)
    {
        m_timer->setTimerType(Qt::PreciseTimer);
        m_timer->setSingleShot(singleShot);
        QObject::connect(m_timer, &QTimer::timeout, m_timer, std::move(callback));
        m_timer->start(interval);
    }
    SystemTimer(const SystemTimer &) = delete;
    SystemTimer &operator=(const SystemTimer &) = delete;
    ~SystemTimer() override
    {
        // The callback itself may be what destroys the timer, so the QTimer outlives it until the loop turns.
        m_timer->stop();
        m_timer->disconnect();
        m_timer->deleteLater();
    }

private:
    QTimer *m_timer;
};

} // namespace

Clock::Instant SystemClock::now() const
{
    return std::chrono::time_point_cast<Duration>(std::chrono::system_clock::now());
}

std::unique_ptr<Clock::Timer> SystemClock::after(Duration delay, Callback callback)
{
    return std::make_unique<SystemTimer>(delay, true, std::move(callback));
}

std::unique_ptr<Clock::Timer> SystemClock::every(Duration period, Callback callback)
{
    return std::make_unique<SystemTimer>(period, false, std::move(callback));
}
