// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

/// The user's folders and durable writing. Main thread only.
class Files {
public:
    virtual ~Files() = default;

    /// Where programs keep the user's data; no trailing slash.
    virtual QString applicationSupportFolder() const = 0;

    /// The user's temporary folder; no trailing slash.
    virtual QString temporaryFolder() const = 0;

    /// Creates a folder with its missing parents, mode 0700. True when it exists afterwards.
    virtual bool createFolder(const QString &path) = 0;

    /// Replaces the file at `path` by the bytes of `pieces`, one after the other, mode 0600: all or nothing, and on
    /// disk when the call returns. On failure the old file stays and no temporary file is left.
    virtual bool replace(const QString &path, const QList<QByteArrayView> &pieces) = 0;
};
