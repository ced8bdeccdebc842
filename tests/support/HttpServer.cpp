// SPDX-License-Identifier: MIT
#include "support/HttpServer.h"

#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

HttpServer::HttpServer()
{
    if (!m_server.listen(QHostAddress::LocalHost)) {
        throw std::runtime_error("no port on loopback");
    }
    connect(&m_server, &QTcpServer::newConnection, this, &HttpServer::accept);
}

QString HttpServer::url() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
}

int HttpServer::count(const QByteArray &path) const
{
    return int(std::ranges::count(m_requests, path, &Request::path));
}

void HttpServer::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        auto received = std::make_shared<QByteArray>();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, received] { read(*socket, *received); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void HttpServer::read(QTcpSocket &socket, QByteArray &received)
{
    received += socket.readAll();
    const qsizetype headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0) {
        return;
    }
    Request request;
    const QList<QByteArray> lines = received.first(headEnd).split('\n');
    const QList<QByteArray> requestLine = lines.first().trimmed().split(' ');
    request.method = requestLine.value(0);
    request.path = requestLine.value(1);
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    const qsizetype length = request.headers.value("content-length").toLongLong();
    if (received.size() < headEnd + 4 + length) {
        return;
    }
    request.body = received.sliced(headEnd + 4, length);
    received.remove(0, headEnd + 4 + length);
    m_requests.append(request);
    answer(socket, onRequest(request));
}

void HttpServer::answerHeld(const Response &response)
{
    answer(*m_held.takeFirst(), response);
}

void HttpServer::answer(QTcpSocket &socket, const Response &response)
{
    switch (response.ending) {
    case Response::Ending::Held:
        m_held.append(&socket);
        return;
    case Response::Ending::NeverReply:
        return;
    case Response::Ending::CloseWithoutReply:
        socket.abort();
        return;
    case Response::Ending::ByteByByte:
    case Response::Ending::CutInBody:
    case Response::Ending::Complete:
        break;
    }
    socket.write("HTTP/1.1 " + QByteArray::number(response.status) + " Status\r\nContent-Length: " +
                 QByteArray::number(response.body.size()) + "\r\n" + response.headers + "\r\n");
    if (response.ending == Response::Ending::CutInBody) {
        socket.write(response.body.first(response.body.size() / 2));
        socket.disconnectFromHost();
        return;
    }
    if (response.ending == Response::Ending::ByteByByte) {
        auto *const ticks = new QTimer(&socket);
        connect(ticks, &QTimer::timeout, &socket, [&socket, ticks, rest = response.body]() mutable {
            socket.write(rest.first(1));
            rest.remove(0, 1);
            if (rest.isEmpty()) {
                ticks->stop();
            }
        });
        ticks->start(std::chrono::milliseconds(100));
        return;
    }
    socket.write(response.body);
}
