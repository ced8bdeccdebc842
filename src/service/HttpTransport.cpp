// SPDX-License-Identifier: MIT
#include "service/HttpTransport.h"

#include "service/HttpConnection.h"

#include <QCoroFuture>
#include <QPromise>

#include <utility>

HttpTransport::HttpTransport(std::chrono::milliseconds timeout) : m_timeout(timeout) {}

HttpTransport::~HttpTransport()
{
    for (const auto &connection : m_connections) {
        connection->abort();
    }
    m_threads.waitForDone();
}

QCoro::Task<std::optional<HttpResponse>> HttpTransport::perform(HttpRequest request)
{
    HttpConnection *const connection = takeIdle();
    auto promise = std::make_shared<QPromise<std::optional<HttpResponse>>>();
    const auto future = promise->future();
    promise->start();
    m_threads.start([connection, promise, timeout = m_timeout, sent = std::move(request)] {
        promise->addResult(connection->exchange(sent, timeout));
        promise->finish();
    });
    const std::optional<HttpResponse> response = co_await future;
    m_idle.push_back(connection);
    co_return response;
}

HttpConnection *HttpTransport::takeIdle()
{
    if (m_idle.empty()) {
        m_connections.push_back(std::make_unique<HttpConnection>());
        return m_connections.back().get();
    }
    // The one used last is the likeliest to be connected still.
    HttpConnection *const connection = m_idle.back();
    m_idle.pop_back();
    return connection;
}
