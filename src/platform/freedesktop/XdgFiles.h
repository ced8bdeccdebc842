// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

/// The folders of the XDG base directory convention, and atomic replacement by rename.
class XdgFiles : public Files {
public:
    QString applicationSupportFolder() const override;

    /// $TMPDIR where the user has set it; else the session's own runtime folder, which no other user can read and
    /// which is emptied at logout; else the system's temporary folder.
    QString temporaryFolder() const override;

    bool createFolder(const QString &path) override;
    bool replace(const QString &path, const QList<QByteArrayView> &pieces) override;
};
