// SPDX-License-Identifier: MIT
#include "http/Connection.h"

#include "support/Log.h"

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/http/error.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <sys/socket.h>

#include <cerrno>

namespace beast = boost::beast;
namespace http = boost::beast::http;

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t readAhead = 128UL * 1024;
constexpr size_t mostDiscarded = 64UL * 1024 * 1024;
// For a request that a client is sending while the server stops.
constexpr std::chrono::seconds lastChance{1};

/// The client's own fault, in contrast to a connection that ended.
std::optional<Reply> replyTo(const beast::error_code &error)
{
    if (!error) {
        return std::nullopt;
    }
    if (error == http::error::body_limit) {
        return Refusal::tooLarge().reply();
    }
    const auto isHttp = error.category() == http::make_error_code(http::error::end_of_stream).category();
    if (!isHttp || error == http::error::end_of_stream || error == http::error::partial_message) {
        throw beast::system_error(error);
    }
    return Refusal::badRequest().reply();
}

} // namespace

Connection::Connection(net::ip::tcp::socket socket, RequestHandler &handler, const ServerOptions &options,
                       const Server::AccessLog &log)
    : m_stream(std::move(socket)), m_buffer(readAhead), m_handler(handler), m_options(options), m_log(log)
{
    beast::error_code error;
    m_peer = unmapped(m_stream.socket().remote_endpoint(error).address());
    m_stream.socket().set_option(net::ip::tcp::no_delay(true), error);
}

void Connection::finish()
{
    m_last = true;
    beast::error_code error;
    if (m_idle && m_fresh) {
        m_stream.expires_after(lastChance);
    } else if (m_idle && m_stream.socket().available(error) == 0) {
        m_stream.cancel();
    }
}

net::awaitable<void> Connection::run()
{
    try {
        do {
            co_await serveOne();
        } while (!m_last);
        co_await close();
    } catch (const beast::system_error &) {
        // The client went away or was too slow; there is nobody to tell.
    } catch (const std::exception &error) {
        logLine(error.what());
    }
}

net::awaitable<void> Connection::serveOne()
{
    co_await waitForRequest();
    const auto started = Clock::now();
    RequestParser parser;
    auto refusal = co_await read(parser);
    AccessRecord record;
    const auto address = clientAddress(parser, m_peer, m_options.trustedProxies);
    record.address = address.to_string();
    unsigned version = 11;
    Reply reply;
    if (refusal) {
        m_last = true;
        reply = std::move(*refusal);
    } else {
        version = parser.get().version();
        m_last = m_last || !parser.get().keep_alive();
        auto request = takeRequest(parser, address);
        request.connected = [this] { return isConnected(); };
        record.method = request.method;
        record.received = request.body.size();
        m_buffer.shrink_to_fit();
        m_stream.expires_never();
        reply = co_await m_handler.handle(request);
    }
    record.sent = reply.body.size();
    record.delivered = co_await write(reply, version);
    if (reply.sent) {
        co_await reply.sent(record.delivered);
    }
    record.route = reply.route;
    record.status = reply.status;
    record.duration = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - started);
    m_log(record);
}

net::awaitable<void> Connection::waitForRequest()
{
    m_idle = true;
    while (m_buffer.size() == 0) {
        m_stream.expires_after(m_last ? std::chrono::milliseconds(lastChance) : m_options.idle);
        const auto count = co_await m_stream.async_read_some(m_buffer.prepare(4096), net::use_awaitable);
        m_buffer.commit(count);
    }
    m_idle = false;
    m_fresh = false;
}

net::awaitable<std::optional<Reply>> Connection::read(RequestParser &parser)
{
    limitHeader(parser);
    m_stream.expires_after(m_options.header);
    beast::error_code error;
    co_await http::async_read_header(m_stream, m_buffer, parser, net::redirect_error(net::use_awaitable, error));
    if (auto refusal = replyTo(error)) {
        co_return refusal;
    }
    const auto limit = m_handler.bodyLimit(pathOf(parser.get().target()));
    if (parser.content_length() && *parser.content_length() > limit) {
        co_return Refusal::tooLarge().reply();
    }
    parser.body_limit(limit);
    co_await allowBody(parser);
    const auto deadline = Clock::now() + m_options.body;
    while (!parser.is_done()) {
        m_stream.expires_at(std::min(Clock::now() + m_options.stall, deadline));
        co_await http::async_read_some(m_stream, m_buffer, parser, net::redirect_error(net::use_awaitable, error));
        if (auto refusal = replyTo(error)) {
            co_return refusal;
        }
    }
    co_return std::nullopt;
}

net::awaitable<void> Connection::allowBody(const RequestParser &parser)
{
    if (beast::iequals(parser.get()[http::field::expect], "100-continue")) {
        static constexpr std::string_view permission = "HTTP/1.1 100 Continue\r\n\r\n";
        m_stream.expires_after(m_options.stall);
        co_await net::async_write(m_stream, net::buffer(permission), net::use_awaitable);
    }
}

net::awaitable<bool> Connection::write(Reply &reply, unsigned version)
{
    http::response<http::string_body> response;
    response.version(version);
    response.result(reply.status);
    response.keep_alive(!m_last);
    response.set(http::field::content_type, reply.contentType);
    response.set(http::field::cache_control, "no-store");
    response.set("X-Content-Type-Options", "nosniff");
    for (const auto &[name, value] : reply.headers) {
        response.set(name, value);
    }
    response.body() = std::move(reply.body);
    response.prepare_payload();
    beast::error_code error;
    m_stream.expires_after(m_options.stall);
    co_await http::async_write(m_stream, response, net::redirect_error(net::use_awaitable, error));
    m_last = m_last || error;
    co_return !error;
}

/// Reads on until the client closes: closing with unread data would reset the connection and lose the reply.
net::awaitable<void> Connection::close()
{
    beast::error_code error;
    m_stream.socket().shutdown(net::ip::tcp::socket::shutdown_send, error);
    m_stream.expires_after(m_options.linger);
    m_buffer.clear();
    for (size_t discarded = 0; !error && discarded < mostDiscarded;) {
        const auto scratch = m_buffer.prepare(65'536);
        discarded += co_await m_stream.async_read_some(scratch, net::redirect_error(net::use_awaitable, error));
    }
}

/// The socket stays open for as long as a request is handled, so any thread may ask.
bool Connection::isConnected()
{
    char next = 0;
    const auto count = ::recv(m_stream.socket().native_handle(), &next, 1, MSG_PEEK | MSG_DONTWAIT);
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR));
}
