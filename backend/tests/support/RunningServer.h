// SPDX-License-Identifier: MIT
#pragma once

#include "http/Server.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>

#include <memory>
#include <thread>

/// A server on an ephemeral loopback port with a thread of its own, stopped and awaited on destruction.
class RunningServer {
public:
    explicit RunningServer(ServerOptions options = {})
        : m_acceptor(m_io, {boost::asio::ip::address_v4::loopback(), 0}),
          m_options(std::move(options)),
          m_port(m_acceptor.local_endpoint().port())
    {
    }
    ~RunningServer() { stop(); }

    uint16_t port() const { return m_port; }
    std::string url() const { return "http://127.0.0.1:" + std::to_string(m_port); }

    void start(
        RequestHandler &handler, Server::AccessLog log = [](const AccessRecord &) {})
    {
        m_server = std::make_unique<Server>(std::move(m_acceptor), handler, m_options, std::move(log));
        m_server->start();
        m_thread = std::thread([this] { m_io.run(); });
    }

    /// `before` is called on the server's thread.
    void stop(const std::function<void()> &before = [] {})
    {
        if (m_thread.joinable()) {
            boost::asio::post(m_io, [&] {
                before();
                m_server->stop();
            });
            m_thread.join();
        }
    }

private:
    boost::asio::io_context m_io;
    boost::asio::ip::tcp::acceptor m_acceptor;
    ServerOptions m_options;
    uint16_t m_port;
    std::unique_ptr<Server> m_server;
    std::thread m_thread;
};
