// SPDX-License-Identifier: MIT
#pragma once

#include "support/Asio.h"

#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <QUrlQuery>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/local/stream_protocol.hpp>

#include <memory>
#include <mutex>
#include <optional>
#include <thread>

/// A way to a PostgreSQL server that breaks as networks do, with a thread of its own.
class DatabaseLine {
public:
    /// `location` is that of a TestDatabase.
    explicit DatabaseLine(const QString &location)
        : m_location(location), m_server(QUrlQuery(QUrl(location)).queryItemValue(QStringLiteral("host")))
    {
        net::co_spawn(m_io, accept(), net::detached);
        m_thread = std::thread([this] { m_io.run(); });
    }
    ~DatabaseLine()
    {
        m_io.stop();
        m_thread.join();
    }

    QString location() const { return QString(m_location).replace(m_server, m_folder.path()); }

    /// From now on each connection is cut that sends `text`, before that arrives. With an empty text, all are.
    void cutAt(std::optional<std::string> text)
    {
        const std::lock_guard lock(m_mutex);
        m_fatal = std::move(text);
    }
    void mend() { cutAt(std::nullopt); }

private:
    using Socket = net::local::stream_protocol::socket;

    static net::local::stream_protocol::endpoint in(const QString &folder)
    {
        return (folder + QStringLiteral("/.s.PGSQL.5432")).toStdString();
    }

    bool isFatal(std::string_view bytes);
    net::awaitable<void> accept();
    net::awaitable<void> pass(std::shared_ptr<Socket> from, std::shared_ptr<Socket> to);

    QString m_location;
    QString m_server;
    std::mutex m_mutex;
    std::optional<std::string> m_fatal;
    QTemporaryDir m_folder;
    net::io_context m_io;
    net::local::stream_protocol::acceptor m_acceptor{m_io, in(m_folder.path())};
    std::thread m_thread;
};
