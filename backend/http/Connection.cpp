// SPDX-License-Identifier: MIT
#include "http/Connection.h"

#include "support/Log.h"

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/http/error.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <sstream>

namespace beast = boost::beast;
namespace http = boost::beast::http;

namespace {

using Clock = std::chrono::steady_clock;
using Message = http::response<http::string_body>;

constexpr size_t readAhead = 128UL * 1024;
constexpr size_t mostDiscarded = 64UL * 1024 * 1024;
// How long a client has for a request that it is just sending while the server stops.
constexpr std::chrono::seconds lastChance{1};
constexpr unsigned standardVersion = 11; // HTTP/1.1

/// Returns the reply to what is the client's fault. A connection that has ended is none, and throws.
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

Message messageOf(Reply &reply, unsigned version, bool keepAlive)
{
    Message message;
    message.version(version);
    message.result(reply.status);
    message.keep_alive(keepAlive);
    if (!reply.contentType.empty()) {
        message.set(http::field::content_type, reply.contentType);
    }
    message.set(http::field::cache_control, "no-store");
    message.set("X-Content-Type-Options", "nosniff");
    for (const auto &[name, value] : reply.headers) {
        message.set(name, value);
    }
    message.body() = std::move(reply.body);
    message.prepare_payload();
    return message;
}

} // namespace

/// One request on its way to its reply.
struct Connection::Exchange {
    RequestParser parser;
    Request request; ///< from its header on
    AccessRecord record;
};

Connection::Connection(net::ip::tcp::socket socket, net::ip::address peer, RequestHandler &handler,
                       const ServerOptions &options, BodyMemory &bodies, const Server::AccessLog &log)
    : m_stream(std::move(socket)),
      m_peer(std::move(peer)),
      m_buffer(readAhead),
      m_handler(handler),
      m_options(options),
      m_bodies(bodies),
      m_log(log)
{
    beast::error_code error;
    m_stream.socket().set_option(net::ip::tcp::no_delay(true), error);
}

void Connection::finish()
{
    m_stopping = true;
    beast::error_code error;
    if (m_state == State::Fresh) {
        m_stream.expires_after(lastChance);
    } else if (m_state == State::Body || (m_state == State::Idle && m_stream.socket().available(error) == 0)) {
        m_stream.cancel();
    }
}

bool Connection::isIdle() const
{
    beast::error_code error;
    return (m_state == State::Fresh || m_state == State::Idle) && m_stream.socket().available(error) == 0;
}

void Connection::evict()
{
    m_state = State::Evicted;
    m_stream.cancel();
}

void Connection::abandon()
{
    if (m_state != State::Handling) {
        m_stream.cancel();
        return;
    }
    m_state = State::Abandoned;
    auto reply = Refusal::serverBusy().reply();
    std::ostringstream bytes;
    bytes << messageOf(reply, standardVersion, false);
    // The socket's buffer has room for it: nothing else is written while a handler runs.
    beast::error_code error;
    m_stream.socket().non_blocking(true, error);
    m_stream.socket().write_some(net::buffer(bytes.str()), error);
    m_stream.socket().shutdown(net::ip::tcp::socket::shutdown_send, error);
}

net::awaitable<void> Connection::run()
{
    try {
        while (co_await serveOne()) {
            m_state = State::Idle;
        }
        co_await close();
    } catch (const beast::system_error &) {
        // The client went away or was too slow; there is nobody to tell.
    } catch (const std::exception &error) {
        logLine(error.what());
    }
}

net::awaitable<bool> Connection::serveOne()
{
    co_await waitForRequest();
    const auto started = Clock::now();
    Exchange exchange;
    exchange.request.address = m_peer;
    std::exception_ptr tooSlow;
    bool mayFollow = false;
    try {
        mayFollow = co_await serve(exchange);
    } catch (const beast::system_error &error) {
        if (error.code() != beast::error_code(beast::error::timeout)) {
            throw;
        }
        exchange.record.status = static_cast<unsigned>(http::status::request_timeout);
        tooSlow = std::current_exception();
    }
    auto &record = exchange.record;
    if (!exchange.request.method.empty()) {
        record.method = exchange.request.method;
    }
    record.address = exchange.request.address.to_string();
    record.duration = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - started);
    m_log(record);
    if (tooSlow) {
        std::rethrow_exception(tooSlow);
    }
    co_return mayFollow;
}

net::awaitable<void> Connection::waitForRequest()
{
    while (m_buffer.size() == 0) {
        m_stream.expires_after(m_stopping ? std::chrono::milliseconds(lastChance) : m_options.idle);
        const auto count = co_await m_stream.async_read_some(m_buffer.prepare(4096), net::use_awaitable);
        m_buffer.commit(count);
    }
    m_state = State::Header;
}

net::awaitable<bool> Connection::serve(Exchange &exchange)
{
    BodyMemory::Share memory(m_bodies);
    auto &[parser, request, record] = exchange;
    auto refusal = co_await read(exchange, memory);
    record.received = parser.get().body().size();
    Reply reply;
    if (refusal) {
        reply = std::move(*refusal);
        parser.get().body() = {};
    } else {
        reply = co_await handle(exchange);
    }
    // The next request may come as soon as the client has its reply.
    memory.release();
    request.admission.reset();
    const auto isAbandoned = m_state == State::Abandoned;
    m_state = State::Replying;
    record.route = reply.route;
    record.status = isAbandoned ? Refusal::serverBusy().reply().status : reply.status;
    record.sent = reply.body.size();
    record.more = std::move(reply.log);
    const auto keepAlive = !refusal && parser.get().keep_alive() && !m_stopping;
    record.delivered = !isAbandoned && co_await write(reply, parser, keepAlive);
    co_await tellSent(reply, record.delivered);
    if (refusal) {
        co_await discardBody(parser, record.received);
    }
    co_return keepAlive &&record.delivered;
}

net::awaitable<std::optional<Reply>> Connection::read(Exchange &exchange, BodyMemory::Share &memory)
{
    auto refusal = co_await readHeader(exchange);
    if (!refusal && !exchange.parser.is_done()) {
        refusal = co_await readBody(exchange, memory);
    }
    co_return refusal;
}

net::awaitable<std::optional<Reply>> Connection::readHeader(Exchange &exchange)
{
    auto &parser = exchange.parser;
    limitHeader(parser);
    m_stream.expires_after(m_options.header);
    beast::error_code error;
    co_await http::async_read_header(m_stream, m_buffer, parser, net::redirect_error(net::use_awaitable, error));
    if (auto refusal = replyTo(error)) {
        co_return refusal;
    }
    // The head is taken now and not with the body: the parser adds the lines that follow a chunked body to the header,
    // and no proxy has looked at those.
    exchange.request = headOf(parser, clientAddress(parser, m_peer, m_options.trustedProxies));
    if (!isUnambiguous(parser)) {
        co_return Refusal::badRequest().reply();
    }
    co_return std::nullopt;
}

net::awaitable<std::optional<Reply>> Connection::readBody(Exchange &exchange, BodyMemory::Share &memory)
{
    auto &parser = exchange.parser;
    const auto limit = m_handler.bodyLimit(exchange.request.path);
    const auto announced = parser.content_length().value_or(0);
    if (announced > limit) {
        co_return Refusal::tooLarge().reply();
    }
    if (auto refusal = co_await m_handler.admit(exchange.request)) {
        co_return refusal;
    }
    if (m_stopping || !m_bodies.has(announced)) {
        co_return Refusal::serverBusy().reply();
    }
    parser.body_limit(limit);
    co_await allowBody(parser);
    const auto deadline = Clock::now() + m_options.body;
    beast::error_code error;
    m_state = State::Body;
    while (!parser.is_done()) {
        if (m_stopping) {
            co_return Refusal::serverBusy().reply();
        }
        m_stream.expires_at(std::min(Clock::now() + m_options.stall, deadline));
        co_await http::async_read_some(m_stream, m_buffer, parser, net::redirect_error(net::use_awaitable, error));
        // finish() interrupts this, which is no failure of the client's.
        if (auto refusal = m_stopping ? std::nullopt : replyTo(error)) {
            co_return refusal;
        }
        if (!memory.growTo(parser.get().body().size())) {
            co_return Refusal::serverBusy().reply();
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

net::awaitable<Reply> Connection::handle(Exchange &exchange)
{
    auto &request = exchange.request;
    request.body = std::move(exchange.parser.get().body());
    request.connected = [this] { return isConnected(); };
    m_buffer.shrink_to_fit();
    m_stream.expires_never();
    m_state = State::Handling;
    co_return co_await m_handler.handle(request);
}

net::awaitable<bool> Connection::write(Reply &reply, const RequestParser &parser, bool keepAlive)
{
    auto message = messageOf(reply, parser.is_header_done() ? parser.get().version() : standardVersion, keepAlive);
    if (parser.get().method() == http::verb::head) {
        message.body().clear(); // its length stays in the header
    }
    beast::error_code error;
    m_stream.expires_after(m_options.stall);
    co_await http::async_write(m_stream, message, net::redirect_error(net::use_awaitable, error));
    co_return !error;
}

net::awaitable<void> Connection::tellSent(Reply &reply, bool delivered)
{
    try {
        if (reply.sent) {
            co_await reply.sent(delivered);
        }
    } catch (const std::exception &error) {
        logLine(error.what());
    }
}

/// Reads the rest of a body that was refused, of which some was received. Some clients look for the reply only when
/// they have sent all, and take a connection that closes before for a failure.
net::awaitable<void> Connection::discardBody(const RequestParser &parser, size_t received)
{
    if (parser.is_header_done() && parser.content_length()) {
        const uint64_t length = *parser.content_length();
        const auto left = length - std::min<uint64_t>(length, received + m_buffer.size());
        m_buffer.clear();
        co_await discard(std::min<uint64_t>(left, mostDiscarded), m_options.body);
    }
}

/// Reads on until the client closes: closing with unread data would reset the connection and lose the reply.
net::awaitable<void> Connection::close()
{
    beast::error_code error;
    m_stream.socket().shutdown(net::ip::tcp::socket::shutdown_send, error);
    m_buffer.clear();
    co_await discard(mostDiscarded, m_options.linger);
}

net::awaitable<void> Connection::discard(size_t bytes, std::chrono::milliseconds time)
{
    constexpr size_t atOnce = 16'384;
    const auto deadline = Clock::now() + time;
    beast::error_code error;
    while (!error && bytes > 0) {
        m_stream.expires_at(std::min(Clock::now() + m_options.linger, deadline));
        const auto scratch = m_buffer.prepare(std::min(bytes, atOnce));
        bytes -= co_await m_stream.async_read_some(scratch, net::redirect_error(net::use_awaitable, error));
    }
}

/// The socket stays open for as long as a request is handled, so any thread may ask.
bool Connection::isConnected()
{
    char next = 0;
    const auto count = ::recv(m_stream.socket().native_handle(), &next, 1, MSG_PEEK | MSG_DONTWAIT);
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR));
}
