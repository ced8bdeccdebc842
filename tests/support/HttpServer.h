// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QTcpServer>

#include <functional>

/// An HTTP server on loopback that answers as the test says and remembers what it was asked.
class HttpServer : public QObject {
public:
    struct Request {
        QByteArray method;
        QByteArray path;
        /// Names in lower case.
        QMap<QByteArray, QByteArray> headers;
        QByteArray body;
    };

    struct Response {
        enum class Ending { Complete, ByteByByte, CutInBody, CloseWithoutReply, NeverReply, Held };

        int status = 200;
        QByteArray body = {};
        /// `ByteByByte`: the body takes 100 ms for each.
        Ending ending = Ending::Complete;
        /// Whole header lines, each with its line break.
        QByteArray headers = {};
    };

    HttpServer();

    /// "http://127.0.0.1:PORT"
    QString url() const;
    const QList<Request> &requests() const { return m_requests; }
    int count(const QByteArray &path) const;

    std::function<Response(const Request &)> onRequest;

    /// Requests whose answer is held back, and the answer to the first of them.
    qsizetype heldCount() const { return m_held.size(); }
    void answerHeld(const Response &response);

private:
    void accept();
    void read(QTcpSocket &socket, QByteArray &received);
    void answer(QTcpSocket &socket, const Response &response);

    QTcpServer m_server;
    QList<Request> m_requests;
    QList<QTcpSocket *> m_held;
};
