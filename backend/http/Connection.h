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
    Connection(net::ip::tcp::socket socket, RequestHandler &handler, const ServerOptions &options,
               const Server::AccessLog &log);

    /// Serves requests until the client or finish() ends it, or a limit is broken. Does not throw.
    net::awaitable<void> run();

    /// Ends the connection: at once when no request is on its way, otherwise after its reply. A connection without any
    /// request so far has a moment to send one.
    void finish();

private:
    net::awaitable<void> serveOne();
    net::awaitable<void> waitForRequest();
    /// The reply to a request that is malformed or too large, or nothing when it was read whole.
    net::awaitable<std::optional<Reply>> read(RequestParser &parser);
    net::awaitable<void> allowBody(const RequestParser &parser);
    net::awaitable<bool> write(Reply &reply, unsigned version);
    net::awaitable<void> close();
    bool isConnected();

    boost::beast::tcp_stream m_stream;
    net::ip::address m_peer;
    boost::beast::flat_buffer m_buffer;
    RequestHandler &m_handler;
    const ServerOptions &m_options;
    const Server::AccessLog &m_log;
    bool m_idle = true;
    bool m_fresh = true; ///< no request has begun
    bool m_last = false;
};
