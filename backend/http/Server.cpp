// SPDX-License-Identifier: MIT
#include "http/Server.h"

#include "http/Connection.h"

#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>

#include <algorithm>

Server::Server(net::ip::tcp::acceptor acceptor, RequestHandler &handler, ServerOptions options, AccessLog log)
    : m_acceptor(std::move(acceptor)),
      m_handler(handler),
      m_options(std::move(options)),
      m_log(std::move(log)),
      m_bodies(m_options.bodies),
      m_addresses(m_options.connectionsPerAddress),
      m_drained(m_acceptor.get_executor())
{
}

void Server::start()
{
    net::co_spawn(m_acceptor.get_executor(), accept(), net::detached);
}

void Server::stop(std::function<void()> gaveUp)
{
    m_stopping = true;
    boost::system::error_code error;
    m_acceptor.cancel(error);
    // Closing would reset the connections that wait here.
    m_acceptor.non_blocking(true, error);
    while (!error) {
        net::ip::tcp::socket socket(m_acceptor.get_executor());
        m_acceptor.accept(socket, error);
        if (!error) {
            spawn(std::move(socket));
        }
    }
    m_acceptor.close(error);
    for (auto *connection : m_connections) {
        connection->finish();
    }
    m_drained.expires_after(m_options.drain);
    net::co_spawn(m_drained.get_executor(), giveUp(std::move(gaveUp)), net::detached);
}

net::awaitable<void> Server::giveUp(std::function<void()> gaveUp)
{
    boost::system::error_code drained;
    if (m_open > 0) {
        co_await m_drained.async_wait(net::redirect_error(net::use_awaitable, drained));
    }
    if (m_open > 0) {
        for (auto *connection : m_connections) {
            connection->abandon();
        }
        gaveUp();
    }
}

net::awaitable<void> Server::accept()
{
    while (!m_stopping) {
        boost::system::error_code error;
        if (m_open <= m_options.connections) {
            auto socket = co_await m_acceptor.async_accept(net::redirect_error(net::use_awaitable, error));
            if (!error) {
                if (m_open >= m_options.connections) {
                    makeRoom();
                }
                spawn(std::move(socket));
                continue;
            }
        }
        if (!m_stopping) {
            // Too many requests or open files: wait for some connection to end instead of spinning.
            net::steady_timer pause(m_acceptor.get_executor(), std::chrono::milliseconds(20));
            co_await pause.async_wait(net::redirect_error(net::use_awaitable, error));
            if (m_open > m_options.connections) {
                makeRoom();
            }
        }
    }
}

/// Ends the first connection that waits for a request, if there is one.
void Server::makeRoom()
{
    if (const auto idle = std::ranges::find_if(m_connections, &Connection::isIdle); idle != m_connections.end()) {
        (*idle)->evict();
    }
}

void Server::spawn(net::ip::tcp::socket socket)
{
    ++m_open;
    net::co_spawn(m_acceptor.get_executor(), serve(std::move(socket)), net::detached);
}

net::awaitable<void> Server::serve(net::ip::tcp::socket socket)
{
    boost::system::error_code error;
    const auto peer = unmapped(socket.remote_endpoint(error).address());
    const auto isProxy = isTrusted(peer, m_options.trustedProxies);
    const auto share = isProxy ? nullptr : m_addresses.take(customerOf(peer));
    if (isProxy || share) {
        Connection connection(std::move(socket), peer, m_handler, m_options, m_bodies, m_log);
        const auto place = m_connections.insert(m_connections.end(), &connection);
        if (m_stopping) {
            connection.finish();
        }
        co_await connection.run();
        m_connections.erase(place);
    }
    if (--m_open == 0 && m_stopping) {
        m_drained.cancel();
    }
}
