// SPDX-License-Identifier: MIT
#pragma once

#include "http/BodyMemory.h"
#include "http/Http.h"
#include "http/Network.h"
#include "http/Shares.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

#include <chrono>
#include <functional>
#include <list>
#include <string>
#include <vector>

class Connection;

struct ServerOptions {
    std::chrono::milliseconds idle{75'000};   ///< for the first byte of a request
    std::chrono::milliseconds header{15'000}; ///< for the rest of its header
    std::chrono::milliseconds stall{30'000};  ///< of a body or a reply without progress
    std::chrono::milliseconds body{300'000};  ///< for a whole body
    std::chrono::milliseconds linger{5'000};  ///< for the client to read a reply and close, without progress
    std::chrono::milliseconds drain{120'000}; ///< for the running requests when the server stops; clients wait as long
    size_t connections = 12'000;              ///< at a time; for further ones, those end that wait for a request
    int connectionsPerAddress = 256;          ///< of one customer, at a time; further ones are closed. 0 is no limit
    size_t bodies = 512UL * 1024 * 1024;      ///< bytes of all bodies held at a time
    /// Proxies whose X-Forwarded-For header tells the client's address, and whose connections are not counted by
    /// theirs.
    std::vector<Network> trustedProxies = {};
};

/// Nothing in it is secret: the route stands for the path, which may hold a checkout link's token.
struct AccessRecord {
    std::string address;
    std::string method = "-";
    std::string route = "-";
    unsigned status = 0; ///< 408, which nobody is told, when the client was too slow
    size_t received = 0; ///< bytes of the request's body
    size_t sent = 0;     ///< bytes of the reply's body
    bool delivered = false;
    std::chrono::microseconds duration{0}; ///< from the first byte received
    QJsonObject more = {};                 ///< as the reply has it
};

/// HTTP/1.1 with keep-alive over one listening socket. Everything happens on the thread that runs the io_context, and
/// run() returns some time after stop(), when the last request has been answered.
class Server {
public:
    using AccessLog = std::function<void(const AccessRecord &)>;

    /// `acceptor` listens already. `handler` must outlive the server, and the server the io_context's run.
    Server(net::ip::tcp::acceptor acceptor, RequestHandler &handler, ServerOptions options, AccessLog log);

    void start();

    /// Takes what has connected already and nothing more, closes idle connections, refuses the requests whose body is
    /// still on its way, and answers the others. Those that run longer than `drain` are refused too, and then
    /// `gaveUp` is called: their handlers still run, without anybody to tell. I/O thread.
    void stop(std::function<void()> gaveUp = [] {});

    size_t connections() const { return m_connections.size(); }

private:
    net::awaitable<void> accept();
    void makeRoom();
    net::awaitable<void> giveUp(std::function<void()> gaveUp);
    void spawn(net::ip::tcp::socket socket);
    net::awaitable<void> serve(net::ip::tcp::socket socket);

    net::ip::tcp::acceptor m_acceptor;
    RequestHandler &m_handler;
    ServerOptions m_options;
    AccessLog m_log;
    BodyMemory m_bodies;
    Shares m_addresses;
    net::steady_timer m_drained;
    std::list<Connection *> m_connections;
    size_t m_open = 0; ///< connections with those that are about to be served
    bool m_stopping = false;
};
