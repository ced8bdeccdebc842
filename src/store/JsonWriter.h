// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

/// Builds JSON text in one growing buffer. QJsonDocument needs a tree of values first, which for a history of 100,000
/// entries takes several times as long as writing the file.
class JsonWriter {
public:
    /// Appends text that is JSON already.
    JsonWriter &raw(QByteArrayView json);

    /// Appends a quoted JSON string: standard escapes, everything else as raw UTF-8.
    JsonWriter &string(QStringView text);

    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};
