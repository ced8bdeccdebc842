// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Turns SIGINT, SIGTERM and SIGHUP into one call on the main thread. One object at a time.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;
    ~TerminationSignals();

private:
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
