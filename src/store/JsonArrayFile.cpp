// SPDX-License-Identifier: MIT
#include "store/JsonArrayFile.h"

#include "platform/Files.h"

#include <QFile>
#include <QJsonDocument>
#include <QUuid>

using namespace Qt::StringLiterals;

JsonArrayFile::JsonArrayFile(Files &files, const QString &name) : m_files(files)
{
    const QString folder = files.applicationSupportFolder() + u"/Quillo"_s;
    files.createFolder(folder);
    m_path = folder + u'/' + name;
}

std::optional<QJsonArray> JsonArrayFile::read() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    return document.isArray() ? std::optional(document.array()) : std::nullopt;
}

void JsonArrayFile::write(const QList<QByteArrayView> &json)
{
    m_files.replace(m_path, json);
}

std::optional<QString> stringAt(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QString newIdentifier()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}
