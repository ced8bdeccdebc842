// SPDX-License-Identifier: MIT
#pragma once

#include "http/Server.h"

#include <QtGlobal>

#include <chrono>
#include <memory>
#include <string>

/// What the server counts, for Prometheus. Any thread.
class Metrics {
public:
    using Duration = std::chrono::steady_clock::duration;

    Metrics();
    ~Metrics();

    void answered(const AccessRecord &record);
    void waited(Duration duration);  ///< a recording, for its turns to be decoded and transcribed
    void decoded(Duration duration); ///< whether that succeeded or not
    void engineRan(Duration duration, bool succeeded);
    void delivered(qint64 seconds, qint64 tokens);
    void chargeFailed();

    /// In Prometheus' text format, with these as they are now.
    std::string text(size_t connections, int placesTaken);

private:
    struct Families;
    std::unique_ptr<Families> m_families;
};
