// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QList>
#include <QObject>
#include <QPair>
#include <QThreadPool>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class HttpConnection;

struct HttpRequest {
    /// "GET" or "POST".
    QByteArray method;
    QUrl url;
    QList<QPair<QByteArray, QByteArray>> headers = {};
    std::optional<QByteArray> body = std::nullopt;
};

struct HttpResponse {
    int status = 0;
    QByteArray body;
};

/// HTTP exchanges, each sent once: no redirect is followed, no body is sent again, no cookie is kept, TLS certificates
/// are verified. Exchanges run in threads of their own, so that an upload does not wait for the main thread to draw;
/// called and resumed on the main thread. The proxies of the environment are used.
class HttpTransport {
public:
    /// `timeout`: an exchange without any progress for this long has failed.
    explicit HttpTransport(std::chrono::milliseconds timeout);
    HttpTransport(const HttpTransport &) = delete;
    HttpTransport &operator=(const HttpTransport &) = delete;
    /// Breaks off what is under way. Who waits for it is never resumed: its owner is going, too.
    ~HttpTransport();

    /// Nothing when no complete response arrived: offline, name resolution, TLS, connection lost, time-out, more than
    /// 16 MiB, or an address that is neither http nor https.
    QCoro::Task<std::optional<HttpResponse>> perform(HttpRequest request);

private:
    class Exchange;

    HttpConnection *takeIdle();

    std::chrono::milliseconds m_timeout;
    std::vector<std::unique_ptr<HttpConnection>> m_connections;
    std::vector<HttpConnection *> m_idle;
    QThreadPool m_threads;
    QObject m_deliveries; ///< drops the answers that arrive too late
};
