// SPDX-License-Identifier: MIT
#include "http/AccessLog.h"

#include <QDateTime>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

std::string accessLine(const AccessRecord &record)
{
    const auto milliseconds = static_cast<double>(record.duration.count()) / 1000;
    QJsonObject line{
        {u"time"_s, QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
        {u"address"_s, QString::fromStdString(record.address)},
        {u"method"_s, QString::fromStdString(record.method)},
        {u"route"_s, QString::fromStdString(record.route)},
        {u"status"_s, static_cast<qint64>(record.status)},
        {u"received"_s, static_cast<qint64>(record.received)},
        {u"sent"_s, static_cast<qint64>(record.sent)},
        {u"delivered"_s, record.delivered},
        {u"ms"_s, milliseconds},
    };
    for (auto member = record.more.begin(); member != record.more.end(); ++member) {
        line.insert(member.key(), member.value());
    }
    return QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString();
}
