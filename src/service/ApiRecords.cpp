// SPDX-License-Identifier: MIT
#include "service/ApiRecords.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// An optional member: absent and null are the same, a value of another type makes the document unreadable.
template <typename T> struct Member {
    bool readable = true;
    std::optional<T> value = std::nullopt;
};

bool isAbsent(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull();
}

Member<QString> string(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    if (isAbsent(value)) {
        return {};
    }
    return value.isString() ? Member<QString>{true, value.toString()} : Member<QString>{false};
}

Member<bool> boolean(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    if (isAbsent(value)) {
        return {};
    }
    return value.isBool() ? Member<bool>{true, value.toBool()} : Member<bool>{false};
}

std::optional<int64_t> integer(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    // What is no integer of 64 bits yields the default, whatever that is.
    const qint64 number = value.toInteger(0);
    return number == value.toInteger(1) ? std::optional<int64_t>(number) : std::nullopt;
}

} // namespace

std::optional<Registration> Registration::decode(const QJsonObject &object)
{
    const auto deviceId = string(object, u"deviceId"_s).value;
    const auto secret = string(object, u"secret"_s).value;
    const auto missed = boolean(object, u"freeGrantMissed"_s);
    if (!deviceId || !secret || !missed.readable) {
        return std::nullopt;
    }
    return Registration{*deviceId, *secret, missed.value.value_or(false)};
}

std::optional<Transcript> Transcript::decode(const QJsonObject &object)
{
    const auto text = string(object, u"text"_s).value;
    const auto balance = integer(object, u"balance"_s);
    return text && balance ? std::optional(Transcript{*text, *balance}) : std::nullopt;
}

std::optional<Balance> Balance::decode(const QJsonObject &object)
{
    const auto balance = integer(object, u"balance"_s);
    const auto unmetered = boolean(object, u"unmetered"_s);
    if (!balance || !unmetered.readable) {
        return std::nullopt;
    }
    return Balance{*balance, unmetered.value.value_or(false)};
}

std::optional<Link> Link::decode(const QJsonObject &object)
{
    const QUrl url(string(object, u"url"_s).value.value_or(QString())); // blanks and the like are encoded
    return url.isValid() && !url.isEmpty() ? std::optional(Link{url}) : std::nullopt;
}

std::optional<ErrorBody> ErrorBody::decode(const QJsonObject &object)
{
    const auto error = string(object, u"error"_s);
    const auto message = string(object, u"message"_s);
    return error.readable && message.readable ? std::optional(ErrorBody{error.value, message.value}) : std::nullopt;
}
