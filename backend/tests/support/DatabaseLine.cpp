// SPDX-License-Identifier: MIT
#include "support/DatabaseLine.h"

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/write.hpp>

#include <string>

bool DatabaseLine::isFatal(std::string_view bytes)
{
    const std::lock_guard lock(m_mutex);
    return m_fatal && bytes.find(*m_fatal) != std::string_view::npos;
}

net::awaitable<void> DatabaseLine::accept()
{
    for (;;) {
        auto client = std::make_shared<Socket>(co_await m_acceptor.async_accept(net::use_awaitable));
        auto server = std::make_shared<Socket>(m_io);
        server->connect(in(m_server));
        net::co_spawn(m_io, pass(client, server), net::detached);
        net::co_spawn(m_io, pass(server, client), net::detached);
    }
}

net::awaitable<void> DatabaseLine::pass(std::shared_ptr<Socket> from, std::shared_ptr<Socket> to)
{
    std::string bytes(8192, 0);
    boost::system::error_code error;
    while (!error) {
        const auto count =
            co_await from->async_read_some(net::buffer(bytes), net::redirect_error(net::use_awaitable, error));
        if (isFatal({bytes.data(), count})) {
            break;
        }
        co_await net::async_write(*to, net::buffer(bytes, count), net::redirect_error(net::use_awaitable, error));
    }
    from->close(error);
    to->close(error);
}
