// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <chrono>

/// The folders of the XDG base directory convention, and atomic replacement by rename.
class XdgFiles : public Files {
public:
    /// `lockPatience`: how long other processes are waited for.
    explicit XdgFiles(std::chrono::milliseconds lockPatience = std::chrono::seconds(2)) : m_lockPatience(lockPatience)
    {
    }

    QString applicationSupportFolder() const override;

    /// $TMPDIR where the user has set it; else the session's own runtime folder, which no other user can read and
    /// which is emptied at logout; else the system's temporary folder.
    QString temporaryFolder() const override;

    bool createFolder(const QString &path) override;
    std::error_code replace(const QString &path, const QList<QByteArrayView> &pieces) override;
    std::unique_ptr<Lock> lock(const QString &folder) override;
    QByteArray stamp(const QString &path) const override;
    std::unique_ptr<Watch> watch(const QString &path, std::function<void()> callback) override;

private:
    std::chrono::milliseconds m_lockPatience;
};
