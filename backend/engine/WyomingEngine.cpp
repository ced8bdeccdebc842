// SPDX-License-Identifier: MIT
#include "engine/WyomingEngine.h"

#include "audio/AudioDecoder.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <boost/asio/connect.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/use_future.hpp>
#include <boost/asio/write.hpp>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds pace{100}; // between two looks at whether anybody still waits
constexpr size_t longestEvent = 1024UL * 1024; // and its data, and its payload

std::string event(const QString &type, const QJsonObject &data = {}, size_t payload = 0)
{
    QJsonObject header{{u"type"_s, type}};
    if (!data.isEmpty()) {
        header.insert(u"data"_s, data);
    }
    if (payload > 0) {
        header.insert(u"payload_length"_s, static_cast<qint64>(payload));
    }
    return QJsonDocument(header).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

QJsonObject objectOf(std::string_view text)
{
    return QJsonDocument::fromJson(QByteArray(text.data(), static_cast<qsizetype>(text.size()))).object();
}

size_t lengthOf(const QJsonObject &header, const QString &name)
{
    const auto length = header[name].toInteger(0);
    if (length < 0 || length > static_cast<qint64>(longestEvent)) {
        throw EngineError("the Wyoming server's event is too long");
    }
    return static_cast<size_t>(length);
}

/// What a transcription is asked with: the language, the format, and all samples (on machines of this byte order).
std::string questionOf(const Samples &samples, const std::string &language)
{
    const QJsonObject format{{u"rate"_s, speechRate}, {u"width"_s, 2}, {u"channels"_s, 1}};
    const std::string_view bytes(reinterpret_cast<const char *>(samples.data()), samples.size() * sizeof(int16_t));
    constexpr size_t chunk = 64UL * 1024;
    const QJsonObject spoken =
        language.empty() ? QJsonObject() : QJsonObject{{u"language"_s, QString::fromStdString(language)}};
    auto question = event(u"transcribe"_s, spoken) + event(u"audio-start"_s, format);
    for (size_t start = 0; start < bytes.size(); start += chunk) {
        const auto piece = bytes.substr(start, chunk);
        question += event(u"audio-chunk"_s, format, piece.size());
        question += piece;
    }
    return question + event(u"audio-stop"_s);
}

} // namespace

WyomingEngine::WyomingEngine(WyomingOptions options) : m_options(std::move(options)) {}

QString WyomingEngine::transcribe(const Recording &recording)
{
    const QDeadlineTimer deadline(m_options.timeout);
    net::io_context io;
    auto text = net::co_spawn(io, ask(recording), net::use_future);
    while (text.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        if (deadline.hasExpired() || !recording.wanted()) {
            throw EngineError("the Wyoming server took too long, or nobody waited for it any more");
        }
        io.run_one_for(pace);
    }
    try {
        return text.get();
    } catch (const boost::system::system_error &error) {
        throw EngineError("the Wyoming server can't be used: " + error.code().message());
    }
}

net::awaitable<QString> WyomingEngine::ask(const Recording &recording) const
{
    const auto question = questionOf(decodeAudio(recording.file, {recording.longest}),
                                     recording.language.empty() ? m_options.language : recording.language);
    const auto executor = co_await net::this_coro::executor;
    net::ip::tcp::resolver resolver(executor);
    const auto servers = co_await resolver.async_resolve(m_options.host, m_options.port, net::use_awaitable);
    Socket socket(executor);
    co_await net::async_connect(socket, servers, net::use_awaitable);
    co_await net::async_write(socket, net::buffer(question), net::use_awaitable);
    co_return co_await receive(socket);
}

/// Reads events until the transcript.
net::awaitable<QString> WyomingEngine::receive(Socket &socket)
{
    std::string received;
    for (;;) {
        const auto length = co_await net::async_read_until(socket, net::dynamic_buffer(received, 2 * longestEvent),
                                                           '\n', net::use_awaitable);
        const auto header = objectOf(std::string_view(received).substr(0, length));
        received.erase(0, length);
        const auto dataLength = lengthOf(header, u"data_length"_s);
        const auto following = dataLength + lengthOf(header, u"payload_length"_s);
        if (following > received.size()) {
            co_await net::async_read(socket, net::dynamic_buffer(received, 2 * longestEvent),
                                     net::transfer_exactly(following - received.size()), net::use_awaitable);
        }
        const auto data =
            dataLength > 0 ? objectOf(std::string_view(received).substr(0, dataLength)) : header[u"data"_s].toObject();
        received.erase(0, following);
        const auto type = header[u"type"_s].toString();
        if (type == u"transcript"_s && data[u"text"_s].isString()) {
            co_return data[u"text"_s].toString();
        }
        if (type.isEmpty() || type == u"transcript"_s || type == u"error"_s) {
            throw EngineError("the Wyoming server answered with no transcript");
        }
    }
}
