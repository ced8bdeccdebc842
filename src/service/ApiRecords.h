// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

#include <cstdint>
#include <optional>

class QJsonObject;

/// The backend's replies. Each `decode` yields nothing when a required member is missing or a member has the wrong
/// type; a null counts as missing; members it does not know are ignored.

struct Registration {
    QString deviceId;
    QString secret;
    /// The free tokens for new devices had run out for the day.
    bool freeGrantMissed = false;

    static std::optional<Registration> decode(const QJsonObject &object);
};

struct Transcript {
    /// As the backend returned it, untrimmed.
    QString text;
    /// Tokens left after this transcript was charged.
    int64_t balance = 0;

    static std::optional<Transcript> decode(const QJsonObject &object);
};

struct Balance {
    int64_t balance = 0;
    bool unmetered = false;

    static std::optional<Balance> decode(const QJsonObject &object);
};

struct Link {
    QUrl url;

    static std::optional<Link> decode(const QJsonObject &object);
};

/// The document that comes with a failure status; both members may be missing.
struct ErrorBody {
    std::optional<QString> error;
    std::optional<QString> message;

    static std::optional<ErrorBody> decode(const QJsonObject &object);
};
