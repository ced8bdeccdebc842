// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

class Files;

/// A JSON array of objects kept in one file of the program's data folder.
class JsonArrayFile {
public:
    /// Creates the program's folder; a failure is silent, reads and writes then fail quietly.
    JsonArrayFile(Files &files, const QString &name);

    const QString &path() const { return m_path; }

    /// Nothing when the file can't be read or holds no JSON array.
    std::optional<QJsonArray> read() const;

    /// Replaces the file, durably, mode 0600. The pieces, one after the other, are the whole text of the array.
    /// Failures are silent.
    void write(const QList<QByteArrayView> &json);

private:
    Files &m_files;
    QString m_path;
};

/// The string under `key`; nothing when it is absent or of another type.
std::optional<QString> stringAt(const QJsonObject &object, const QString &key);

/// A new identifier: a random UUID in its 36-character canonical form, upper case.
QString newIdentifier();
