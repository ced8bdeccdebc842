// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PackagedInfo.h"

#include <QJsonObject>

/// Info.json of a resource folder, read once at construction. A missing or broken file has no values.
class ResourceInfo : public PackagedInfo {
public:
    explicit ResourceInfo(const QString &resourceFolder);

    /// $QUILLO_RESOURCES, else the folder share/quillo beside the program's bin folder.
    static QString defaultFolder();

    std::optional<QString> string(const QString &key) const override;

private:
    QJsonObject m_values;
};
