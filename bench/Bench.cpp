// SPDX-License-Identifier: MIT
#include "bench/Bench.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

QJsonValue orNull(const std::optional<double> &value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

} // namespace

void report(const Figure &figure)
{
    const auto ratio = figure.reference ? std::optional(figure.value / *figure.reference) : std::nullopt;
    const QJsonObject line{{u"name"_s, figure.name},
                           {u"unit"_s, figure.unit},
                           {u"value"_s, figure.value},
                           {u"reference"_s, orNull(figure.reference)},
                           {u"ratio"_s, orNull(ratio)},
                           {u"limit"_s, orNull(figure.limit)},
                           {u"limitOn"_s, figure.limitOn == Figure::LimitOn::Value ? u"value"_s : u"ratio"_s}};
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

double milliseconds(Instant from, Instant to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

double timed(const std::function<void()> &call)
{
    const Instant from = std::chrono::steady_clock::now();
    call();
    return milliseconds(from, std::chrono::steady_clock::now());
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

void pause(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

int runBench(const std::function<void()> &bench)
{
    try {
        bench();
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
