// SPDX-License-Identifier: MIT
#pragma once

#include "http/RequestParsing.h"
#include "http/Server.h"

#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>

#include <optional>

/// One client's connection: its requests, one after the other. I/O thread only.
class Connection {
public:
    Connection(net::ip::tcp::socket socket, net::ip::address peer, RequestHandler &handler,
               const ServerOptions &options, BodyMemory &bodies, const Server::AccessLog &log);

    /// Serves requests until the client or finish() ends it, or a limit is broken. Does not throw.
    net::awaitable<void> run();

    /// Ends the connection: at once when no request is on its way, otherwise after its reply, which is a refusal when
    /// the body has not been read yet. A connection without any request so far has a moment to send one.
    void finish();

    /// Whether it waits for a request, of which nothing has come.
    bool isIdle() const;

    /// Ends a connection that is idle.
    void evict();

    /// After finish(): waits no longer. A request that is being handled is refused in its handler's place.
    void abandon();

private:
    enum class State {
        Fresh,     ///< waits for the first request
        Idle,      ///< waits for a further one
        Evicted,   ///< ends while it waits
        Header,    ///< reads one
        Body,      ///< reads one
        Handling,  ///< the handler works on a request that was read whole
        Abandoned, ///< the handler still does, and the client has been refused in its place
        Replying,
    };
    struct Exchange;

    /// Whether a further request may follow.
    net::awaitable<bool> serveOne();
    net::awaitable<void> waitForRequest();
    net::awaitable<bool> serve(Exchange &exchange);
    /// The reply to a request that is refused as it comes, or nothing when it was read whole.
    net::awaitable<std::optional<Reply>> read(Exchange &exchange, BodyMemory::Share &memory);
    net::awaitable<std::optional<Reply>> readHeader(Exchange &exchange);
    net::awaitable<std::optional<Reply>> readBody(Exchange &exchange, BodyMemory::Share &memory);
    net::awaitable<void> allowBody(const RequestParser &parser);
    net::awaitable<Reply> handle(Exchange &exchange);
    net::awaitable<bool> write(Reply &reply, const RequestParser &parser, bool keepAlive);
    net::awaitable<void> tellSent(Reply &reply, bool delivered);
    net::awaitable<void> discardBody(const RequestParser &parser, size_t received);
    net::awaitable<void> discard(size_t bytes, std::chrono::milliseconds time);
    net::awaitable<void> close();
    bool isConnected();

    boost::beast::tcp_stream m_stream;
    net::ip::address m_peer;
    boost::beast::flat_buffer m_buffer;
    RequestHandler &m_handler;
    const ServerOptions &m_options;
    BodyMemory &m_bodies;
    const Server::AccessLog &m_log;
    State m_state = State::Fresh;
    bool m_stopping = false; ///< the request that is read or handled is the last
};
