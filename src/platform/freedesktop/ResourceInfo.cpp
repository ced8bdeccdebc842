// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ResourceInfo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

ResourceInfo::ResourceInfo(const QString &resourceFolder)
{
    QFile file(resourceFolder + u"/Info.json"_s);
    if (file.open(QIODevice::ReadOnly)) {
        m_values = QJsonDocument::fromJson(file.readAll()).object();
    }
}

QString ResourceInfo::defaultFolder()
{
    const QString chosen = qEnvironmentVariable("QUILLO_RESOURCES");
    return chosen.isEmpty() ? QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/quillo"_s) : chosen;
}

std::optional<QString> ResourceInfo::string(const QString &key) const
{
    const QJsonValue value = m_values.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}
