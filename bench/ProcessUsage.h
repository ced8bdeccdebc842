// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>

/// What a running process has used, from /proc. Throws std::runtime_error when it is gone.
struct ProcessUsage {
    static ProcessUsage of(qint64 pid);

    /// Of all its threads since they started.
    std::chrono::nanoseconds processorTime{0};
    /// How often a thread of it gave up the processor to wait, and so was woken again.
    qint64 waits = 0;
    double rssMebibytes = 0;
    double pssMebibytes = 0;
};
