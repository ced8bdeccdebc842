// SPDX-License-Identifier: MIT
#include "http/Server.h"

#include "http/Connection.h"

#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>

Server::Server(net::ip::tcp::acceptor acceptor, RequestHandler &handler, ServerOptions options, AccessLog log)
    : m_acceptor(std::move(acceptor)), m_handler(handler), m_options(std::move(options)), m_log(std::move(log))
{
}

void Server::start()
{
    net::co_spawn(m_acceptor.get_executor(), accept(), net::detached);
}

void Server::stop()
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
}

net::awaitable<void> Server::accept()
{
    while (!m_stopping) {
        boost::system::error_code error;
        if (m_connections.size() < m_options.connections) {
            auto socket = co_await m_acceptor.async_accept(net::redirect_error(net::use_awaitable, error));
            if (!error) {
                spawn(std::move(socket));
                continue;
            }
        }
        if (!m_stopping) {
            // Too many connections or open files: wait for some connection to end instead of spinning.
            net::steady_timer pause(m_acceptor.get_executor(), std::chrono::milliseconds(20));
            co_await pause.async_wait(net::redirect_error(net::use_awaitable, error));
        }
    }
}

void Server::spawn(net::ip::tcp::socket socket)
{
    net::co_spawn(m_acceptor.get_executor(), serve(std::move(socket)), net::detached);
}

net::awaitable<void> Server::serve(net::ip::tcp::socket socket)
{
    Connection connection(std::move(socket), m_handler, m_options, m_log);
    const auto place = m_connections.insert(m_connections.end(), &connection);
    if (m_stopping) {
        connection.finish();
    }
    co_await connection.run();
    m_connections.erase(place);
}
