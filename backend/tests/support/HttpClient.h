// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <boost/asio/connect.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>

#include <fstream>
#include <string>
#include <string_view>
#include <utility>

struct HttpAnswer {
    unsigned status = 0;
    std::string contentType;
    std::string location;
    std::string retryAfter;
    std::string body;

    QJsonObject json() const { return QJsonDocument::fromJson(QByteArray::fromStdString(body)).object(); }
    std::string error() const { return json()[QLatin1String("error")].toString().toStdString(); }
    qint64 balance() const { return json()[QLatin1String("balance")].toInteger(-1); }
};

/// One blocking connection to a server on loopback.
class HttpClient {
public:
    explicit HttpClient(uint16_t port) { m_socket.connect({boost::asio::ip::address_v4::loopback(), port}); }

    /// `headers` are whole lines with their ends.
    HttpAnswer send(std::string_view method, std::string_view path, std::string_view headers = {},
                    std::string_view body = {})
    {
        auto message = std::string(method) + " " + std::string(path) + " HTTP/1.1\r\nHost: test\r\n";
        message += headers;
        message += "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n";
        return sendRaw(message + std::string(body));
    }

    HttpAnswer sendRaw(std::string_view message)
    {
        write(message);
        return receive();
    }

    void write(std::string_view message)
    {
        m_request += message.substr(0, message.find('\n'));
        boost::asio::write(m_socket, boost::asio::buffer(message));
    }

    /// `isHead`: the answer has a body's length without the body.
    HttpAnswer receive(bool isHead = false)
    {
        boost::beast::http::response_parser<boost::beast::http::string_body> parser;
        parser.skip(isHead);
        boost::beast::http::read(m_socket, m_buffer, parser);
        const auto &response = parser.get();
        keep(response);
        using field = boost::beast::http::field;
        const auto text = [&](auto name) { return std::string(response[name]); };
        return {response.result_int(), text(field::content_type), text(field::location), text(field::retry_after),
                response.body()};
    }

    /// Waits for the server; true when it closed without another byte.
    bool isClosedByServer()
    {
        char next = 0;
        boost::system::error_code error;
        return m_socket.read_some(boost::asio::buffer(&next, 1), error) == 0 && error;
    }

    void close() { m_socket.close(); }

    /// Sends nothing more, and can still receive.
    void closeHalf() { m_socket.shutdown(boost::asio::ip::tcp::socket::shutdown_send); }

    /// Breaks the connection off instead of closing it.
    void reset()
    {
        m_socket.set_option(boost::asio::socket_base::linger(true, 0));
        m_socket.close();
    }

private:
    /// For contract.py, which holds what the tests exchange to the description of the API.
    void keep(const boost::beast::http::response<boost::beast::http::string_body> &response)
    {
        const auto request = QString::fromStdString(std::exchange(m_request, {})).split(QLatin1Char(' '));
        if (!qEnvironmentVariableIsSet("QUILLO_EXCHANGES") || request.size() != 3 || response.result_int() == 100) {
            return;
        }
        QJsonObject headers;
        for (const auto &line : response) {
            headers.insert(QString::fromStdString(std::string(line.name_string())),
                           QString::fromStdString(std::string(line.value())));
        }
        const QJsonObject exchange{{QStringLiteral("method"), request[0]},
                                   {QStringLiteral("path"), request[1]},
                                   {QStringLiteral("status"), static_cast<int>(response.result_int())},
                                   {QStringLiteral("headers"), headers},
                                   {QStringLiteral("body"), QString::fromStdString(response.body())}};
        std::ofstream(qgetenv("QUILLO_EXCHANGES").toStdString(), std::ios::app)
            << QJsonDocument(exchange).toJson(QJsonDocument::Compact).toStdString() + "\n";
    }

    std::string m_request; ///< the first line of what was sent
    boost::asio::io_context m_io;
    boost::asio::ip::tcp::socket m_socket{m_io};
    boost::beast::flat_buffer m_buffer;
};

inline std::string multipart(std::string_view file)
{
    return "--b\r\nContent-Disposition: form-data; name=\"file\"; filename=\"dictation.m4a\"\r\n"
           "Content-Type: audio/mp4\r\n\r\n" +
           std::string(file) + "\r\n--b--\r\n";
}

inline constexpr std::string_view multipartHeader = "Content-Type: multipart/form-data; boundary=b\r\n";

/// Registers a device; its authorization header.
inline std::string registeredAt(uint16_t port)
{
    const auto device = HttpClient(port).send("POST", "/v1/devices", {}, R"({"platform":"linux"})").json();
    return "Authorization: Bearer " + device[QLatin1String("deviceId")].toString().toStdString() + "." +
           device[QLatin1String("secret")].toString().toStdString() + "\r\n";
}
