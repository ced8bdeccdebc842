// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Values chosen when the program was packaged, from Info.json in its resource folder.
class PackagedInfo {
public:
    virtual ~PackagedInfo() = default;

    /// Nothing when the key is absent or no string.
    virtual std::optional<QString> string(const QString &key) const = 0;
};
