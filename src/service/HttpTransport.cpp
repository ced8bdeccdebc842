// SPDX-License-Identifier: MIT
#include "service/HttpTransport.h"

#include <QCoroSignal>
#include <QIODevice>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A request body that can be read once. QNetworkAccessManager sends a request again when the connection breaks before
/// an answer; a recording sent twice may be charged twice, and a body that can't be rewound makes it give up instead.
class OneTimeBody : public QIODevice {
public:
    explicit OneTimeBody(QByteArray bytes) : m_bytes(std::move(bytes))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    bool atEnd() const override { return m_offset == m_bytes.size(); }
    qint64 bytesAvailable() const override { return m_bytes.size() - m_offset + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const qint64 length = std::min(maximum, m_bytes.size() - m_offset);
        if (length == 0) {
            return -1;
        }
        std::memcpy(data, m_bytes.constData() + m_offset, size_t(length));
        m_offset += length;
        return length;
    }
    qint64 writeData(const char * /*data*/, qint64 /*maximum*/) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_offset = 0;
};

/// Whether the reply is a complete response of the server, of whatever status.
bool isResponse(const QNetworkReply &reply)
{
    if (!reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()) {
        return false;
    }
    switch (reply.error()) {
    case QNetworkReply::NoError:
    case QNetworkReply::ProtocolInvalidOperationError: // status 400
        return true;
    case QNetworkReply::ContentReSendError:
        return false;
    default:
        // From here on Qt's codes stand for HTTP statuses; the ones below are failures of the exchange itself.
        return reply.error() >= QNetworkReply::ContentAccessDenied && reply.error() != QNetworkReply::ProtocolFailure &&
               reply.error() != QNetworkReply::ProtocolUnknownError;
    }
}

} // namespace

HttpTransport::HttpTransport(std::chrono::milliseconds timeout) : m_timeout(timeout)
{
    m_manager.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

QCoro::Task<std::optional<HttpResponse>> HttpTransport::perform(HttpRequest request)
{
    QNetworkRequest native(request.url);
    native.setTransferTimeout(int(m_timeout.count()));
    native.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    native.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    native.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    native.setHeader(QNetworkRequest::UserAgentHeader, u"Quillo"_s);
    for (const auto &[name, value] : std::as_const(request.headers)) {
        native.setRawHeader(name, value);
    }

    std::unique_ptr<OneTimeBody> body;
    if (request.body) {
        native.setHeader(QNetworkRequest::ContentLengthHeader, request.body->size());
        native.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
        body = std::make_unique<OneTimeBody>(std::move(*request.body));
    } else if (request.method != "GET") {
        native.setHeader(QNetworkRequest::ContentLengthHeader, 0);
    }

    const std::unique_ptr<QNetworkReply> reply(m_manager.sendCustomRequest(native, request.method, body.get()));
    co_await qCoro(reply.get(), &QNetworkReply::finished);

    if (!isResponse(*reply)) {
        co_return std::nullopt;
    }
    co_return HttpResponse{reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll()};
}
