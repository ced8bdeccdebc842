// SPDX-License-Identifier: MIT
#include "service/HttpTransport.h"

#include "service/HttpConnection.h"

#include <coroutine>
#include <utility>

namespace {

// Threads that wait for a server cost next to nothing, and an upload that waits for one costs its user's time.
constexpr int mostExchanges = 64;

} // namespace

HttpTransport::HttpTransport(std::chrono::milliseconds timeout) : m_timeout(timeout)
{
    m_threads.setMaxThreadCount(mostExchanges);
}

HttpTransport::~HttpTransport()
{
    for (const auto &connection : m_connections) {
        connection->abort();
    }
    m_threads.waitForDone();
}

/// Awaiting it runs one exchange in a thread and resumes on the main thread.
class HttpTransport::Exchange {
public:
    Exchange(HttpTransport &transport, HttpConnection &connection, const HttpRequest &request)
        : m_transport(transport), m_connection(connection), m_request(request)
    {
    }

    static bool await_ready() noexcept { return false; }

    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_transport.m_threads.start([this, waiting] {
            m_response = m_connection.exchange(m_request, m_transport.m_timeout);
            QMetaObject::invokeMethod(
                &m_transport.m_deliveries, [waiting] { waiting.resume(); }, Qt::QueuedConnection);
        });
    }

    std::optional<HttpResponse> await_resume() { return std::move(m_response); }

private:
    HttpTransport &m_transport;
    HttpConnection &m_connection;
    const HttpRequest &m_request;
    std::optional<HttpResponse> m_response;
};

QCoro::Task<std::optional<HttpResponse>> HttpTransport::perform(HttpRequest request)
{
    if (request.url.scheme() != u"https" && request.url.scheme() != u"http") {
        co_return std::nullopt; // no guess: what is meant to be encrypted would go in clear
    }
    HttpConnection *const connection = takeIdle();
    Exchange exchange(*this, *connection, request);
    std::optional<HttpResponse> response = co_await exchange;
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
