// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QThread>

#include <chrono>
#include <optional>
#include <vector>

/// Stands between a client and an HTTP server on loopback, passes every byte on at once and remembers when it passed.
/// It works in a thread of its own, so that a test may block meanwhile.
class WireTap {
public:
    using Instant = std::chrono::steady_clock::time_point;

    struct Exchange {
        /// "POST /v1/transcribe"
        QByteArray request;
        Instant firstRequestByte;
        Instant lastRequestByte;
        Instant firstReplyByte;
        Instant lastReplyByte;
        /// Head and body.
        QByteArray reply;
    };

    explicit WireTap(quint16 serverPort);
    WireTap(const WireTap &) = delete;
    WireTap &operator=(const WireTap &) = delete;
    ~WireTap();

    QString url() const;

    /// The last exchange of that request, complete or not; nothing when there is none.
    std::optional<Exchange> last(const QByteArray &request) const;
    int count(const QByteArray &request) const;

private:
    class Worker;

    QThread m_thread;
    mutable QMutex m_mutex;
    std::vector<Exchange> m_exchanges;
    quint16 m_port = 0;
};
