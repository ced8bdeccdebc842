// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

/// One measured figure. It is printed as one line of JSON, with the ratio of value to reference.
struct Figure {
    enum class LimitOn { Value, Ratio };

    QString name;
    QString unit;
    double value = 0;
    /// What the value is held against, measured in the same run.
    std::optional<double> reference = std::nullopt;
    /// Highest value or ratio wanted.
    std::optional<double> limit = std::nullopt;
    LimitOn limitOn = LimitOn::Ratio;
};

void report(const Figure &figure);

using Instant = std::chrono::steady_clock::time_point;

double milliseconds(Instant from, Instant to);

/// Milliseconds that a call takes.
double timed(const std::function<void()> &call);

double median(std::vector<double> values);

/// Lets the event loop run.
void pause(std::chrono::milliseconds duration);

/// Runs a bench and says on standard error what it threw; returns the exit status.
int runBench(const std::function<void()> &bench);
