// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <set>
#include <utility>

/// Folders of the test's own; writing is plain and can be made to fail.
class FakeFiles : public Files {
public:
    QString applicationSupportFolder() const override { return m_folder.filePath(QStringLiteral("data")); }
    QString temporaryFolder() const override { return m_folder.path(); }
    bool createFolder(const QString &path) override { return QDir().mkpath(path); }
    std::error_code replace(const QString &path, const QList<QByteArrayView> &pieces) override
    {
        ++writes;
        QFile file(path);
        if (failsToWrite || !file.open(QIODevice::WriteOnly)) {
            return std::make_error_code(std::errc::no_space_on_device);
        }
        for (const QByteArrayView piece : pieces) {
            file.write(piece.data(), piece.size());
        }
        return {};
    }
    std::unique_ptr<Lock> lock(const QString & /*folder*/) override { return std::make_unique<Lock>(); }

    /// The content itself.
    QByteArray stamp(const QString &path) const override
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? "content: " + file.readAll() : QByteArray();
    }
    std::unique_ptr<Watch> watch(const QString & /*path*/, std::function<void()> callback) override
    {
        ++watches;
        return std::make_unique<FakeWatch>(m_watches, std::move(callback));
    }

    /// As when another program has written one of the files.
    void tellWatches() const
    {
        for (const FakeWatch *const watch : m_watches) {
            watch->callback();
        }
    }

    /// Recordings left in the temporary folder.
    QStringList recordings() const { return QDir(m_folder.path()).entryList({QStringLiteral("*.m4a")}, QDir::Files); }

    bool failsToWrite = false;
    int writes = 0;
    int watches = 0; ///< begun so far

private:
    struct FakeWatch : Watch {
        FakeWatch(std::set<FakeWatch *> &all, std::function<void()> told) : watches(all), callback(std::move(told))
        {
            watches.insert(this);
        }
        FakeWatch(const FakeWatch &) = delete;
        FakeWatch &operator=(const FakeWatch &) = delete;
        ~FakeWatch() override { watches.erase(this); }

        std::set<FakeWatch *> &watches;
        std::function<void()> callback;
    };

    std::set<FakeWatch *> m_watches;
    QTemporaryDir m_folder;
};
