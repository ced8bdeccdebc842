// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"

#include <boost/asio/ip/tcp.hpp>

#include <chrono>
#include <functional>
#include <list>

class Connection;

struct ServerLimits {
    std::chrono::milliseconds idle{75'000};   ///< for the first byte of a request
    std::chrono::milliseconds header{15'000}; ///< for the rest of its header
    std::chrono::milliseconds stall{30'000};  ///< of a body or a reply without progress
    std::chrono::milliseconds linger{5'000};  ///< for the client to read a reply and close
};

struct AccessRecord {
    std::string method = "-";
    std::string route = "-";
    unsigned status = 0;
    std::chrono::milliseconds duration{0};
};

/// HTTP/1.1 with keep-alive over one listening socket. Everything happens on the thread that runs the io_context, and
/// run() returns some time after stop(), when the last request has been answered.
class Server {
public:
    using AccessLog = std::function<void(const AccessRecord &)>;

    /// `acceptor` listens already. `handler` must outlive the server, and the server the io_context's run.
    Server(net::ip::tcp::acceptor acceptor, RequestHandler &handler, ServerLimits limits, AccessLog log);

    void start();

    /// Accepts nothing more, closes idle connections, and lets running requests finish. I/O thread.
    void stop();

private:
    net::awaitable<void> accept();
    net::awaitable<void> serve(net::ip::tcp::socket socket);

    net::ip::tcp::acceptor m_acceptor;
    RequestHandler &m_handler;
    ServerLimits m_limits;
    AccessLog m_log;
    std::list<Connection *> m_connections;
    bool m_stopping = false;
};
