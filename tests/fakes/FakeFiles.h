// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// Folders of the test's own; writing is plain and can be made to fail.
class FakeFiles : public Files {
public:
    QString applicationSupportFolder() const override { return m_folder.filePath(QStringLiteral("data")); }
    QString temporaryFolder() const override { return m_folder.path(); }
    bool createFolder(const QString &path) override { return QDir().mkpath(path); }
    bool replace(const QString &path, const QList<QByteArrayView> &pieces) override
    {
        ++writes;
        QFile file(path);
        if (failsToWrite || !file.open(QIODevice::WriteOnly)) {
            return false;
        }
        for (const QByteArrayView piece : pieces) {
            file.write(piece.data(), piece.size());
        }
        return true;
    }

    /// Recordings left in the temporary folder.
    QStringList recordings() const { return QDir(m_folder.path()).entryList({QStringLiteral("*.m4a")}, QDir::Files); }

    bool failsToWrite = false;
    int writes = 0;

private:
    QTemporaryDir m_folder;
};
