// SPDX-License-Identifier: MIT
#include "support/WireTap.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <memory>
#include <stdexcept>

/// Forwards the connections; lives in the tap's thread.
class WireTap::Worker : public QObject {
public:
    Worker(WireTap &tap, quint16 serverPort) : m_tap(tap), m_serverPort(serverPort), m_server(this)
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *client = m_server.nextPendingConnection()) {
                forward(client);
            }
        });
    }

    quint16 listen() { return m_server.listen(QHostAddress::LocalHost) ? m_server.serverPort() : 0; }

private:
    void forward(QTcpSocket *client)
    {
        auto *server = new QTcpSocket(client);
        server->connectToHost(QHostAddress::LocalHost, m_serverPort);
        // One exchange at a time on a connection: a request begins after the reply before it has.
        auto current = std::make_shared<std::optional<size_t>>();
        connect(client, &QTcpSocket::readyRead, this, [this, client, server, current] {
            const QByteArray bytes = client->readAll();
            noteRequest(bytes, *current);
            server->write(bytes);
        });
        connect(server, &QTcpSocket::readyRead, this, [this, client, server, current] {
            const QByteArray bytes = server->readAll();
            noteReply(bytes, *current);
            client->write(bytes);
        });
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(server, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    }

    void noteRequest(const QByteArray &bytes, std::optional<size_t> &current)
    {
        const Instant now = std::chrono::steady_clock::now();
        const QMutexLocker lock(&m_tap.m_mutex);
        if (!current || !m_tap.m_exchanges[*current].reply.isEmpty()) {
            const QList<QByteArray> words = bytes.first(std::max<qsizetype>(bytes.indexOf('\r'), 0)).split(' ');
            current = m_tap.m_exchanges.size();
            m_tap.m_exchanges.push_back({words.value(0) + ' ' + words.value(1), now, now, now, now, {}});
        }
        m_tap.m_exchanges[*current].lastRequestByte = now;
    }

    void noteReply(const QByteArray &bytes, const std::optional<size_t> &current)
    {
        const Instant now = std::chrono::steady_clock::now();
        const QMutexLocker lock(&m_tap.m_mutex);
        if (!current) {
            return;
        }
        Exchange &exchange = m_tap.m_exchanges[*current];
        if (exchange.reply.isEmpty()) {
            exchange.firstReplyByte = now;
        }
        exchange.lastReplyByte = now;
        exchange.reply += bytes;
    }

    WireTap &m_tap;
    quint16 m_serverPort;
    QTcpServer m_server;
};

WireTap::WireTap(quint16 serverPort)
{
    auto *worker = new Worker(*this, serverPort);
    worker->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, worker, &QObject::deleteLater);
    m_thread.start();
    QMetaObject::invokeMethod(
        worker, [worker] { return worker->listen(); }, Qt::BlockingQueuedConnection, &m_port);
    if (m_port == 0) {
        throw std::runtime_error("no port on loopback");
    }
}

WireTap::~WireTap()
{
    m_thread.quit();
    m_thread.wait();
}

QString WireTap::url() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_port);
}

std::optional<WireTap::Exchange> WireTap::last(const QByteArray &request) const
{
    const QMutexLocker lock(&m_mutex);
    const auto found = std::find_if(m_exchanges.rbegin(), m_exchanges.rend(),
                                    [&](const Exchange &exchange) { return exchange.request == request; });
    return found == m_exchanges.rend() ? std::nullopt : std::optional(*found);
}

int WireTap::count(const QByteArray &request) const
{
    const QMutexLocker lock(&m_mutex);
    return int(std::ranges::count(m_exchanges, request, &Exchange::request));
}
