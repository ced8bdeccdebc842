// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QList>
#include <QNetworkAccessManager>
#include <QPair>
#include <QUrl>

#include <chrono>
#include <optional>

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

/// One HTTP exchange at a time and never twice: no redirect is followed, nothing is sent again, no cookie is kept,
/// TLS certificates are verified. Main thread only; the wait suspends.
class HttpTransport {
public:
    /// `timeout`: a request without any progress for this long has failed.
    explicit HttpTransport(std::chrono::milliseconds timeout);

    /// Nothing when no complete response arrived: offline, name resolution, TLS, connection lost, time-out.
    QCoro::Task<std::optional<HttpResponse>> perform(HttpRequest request);

private:
    QNetworkAccessManager m_manager;
    std::chrono::milliseconds m_timeout;
};
