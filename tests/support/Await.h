// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>

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

/// Runs the event loop until the coroutine ends; returns its result or throws what it threw.
template <typename T> T resultOf(QCoro::Task<T> task)
{
    std::optional<T> result;
    std::exception_ptr failure;
    [](QCoro::Task<T> &awaited, std::optional<T> &value, std::exception_ptr &error) -> QCoro::Task<void> {
        try {
            value = co_await awaited;
        } catch (...) {
            error = std::current_exception();
        }
    }(task, result, failure);
    if (!await([&] { return result.has_value() || failure != nullptr; })) {
        throw std::runtime_error("the coroutine did not end in time");
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
    return *result;
}
