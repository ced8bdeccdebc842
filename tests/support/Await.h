// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

/// Runs the event loop until `condition` holds; false when it does not within the limit. It turns with the events that
/// arrive; the limit only ends a broken test.
inline bool await(const std::function<bool()> &condition, std::chrono::milliseconds limit = std::chrono::seconds(20))
{
    const QDeadlineTimer deadline(limit);
    QEventLoop loop;
    QTimer heartbeat; // for conditions that no event of this process announces
    heartbeat.start(std::chrono::milliseconds(5));
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Runs the event loop until the coroutine ends and returns its result.
template <typename T>
T resultOf(QCoro::Task<T> task)
{
    return QCoro::waitFor(task);
}
