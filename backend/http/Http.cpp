// SPDX-License-Identifier: MIT
#include "http/Http.h"

#include <QJsonDocument>

namespace {

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

Reply Refusal::reply() const
{
    auto reply = jsonReply({{QStringLiteral("error"), toText(m_code)}, {QStringLiteral("message"), toText(m_message)}},
                           m_status);
    if (m_status == 401) {
        reply.headers.emplace_back("WWW-Authenticate", "Bearer");
    }
    if (m_retryAfter) {
        reply.headers.emplace_back("Retry-After", std::to_string(m_retryAfter->count()));
    }
    return reply;
}

Reply jsonReply(const QJsonObject &document, unsigned status)
{
    Reply reply;
    reply.status = status;
    reply.body = QJsonDocument(document).toJson(QJsonDocument::Compact).toStdString();
    return reply;
}
