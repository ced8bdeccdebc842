// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <system_error>

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
    /// disk when the call returns. Of a symbolic link the target is replaced. On failure the old file stays and no
    /// temporary file is left.
    virtual std::error_code replace(const QString &path, const QList<QByteArrayView> &pieces) = 0;

    /// Keeps other processes of the user that ask for it, too, out of the folder while the result lives. Waits for
    /// them 2 s at most; what then has to be done is done without.
    class Lock {
    public:
        Lock() = default;
        Lock(const Lock &) = delete;
        Lock &operator=(const Lock &) = delete;
        virtual ~Lock() = default;
    };
    [[nodiscard]] virtual std::unique_ptr<Lock> lock(const QString &folder) = 0;

    /// Two equal values stand for the same content of the file at `path`; empty when there is none.
    virtual QByteArray stamp(const QString &path) const = 0;

    /// Calls back some time after the file at `path`, in a folder that exists, was made, written or replaced, by
    /// whomever, as long as the result lives.
    class Watch {
    public:
        Watch() = default;
        Watch(const Watch &) = delete;
        Watch &operator=(const Watch &) = delete;
        virtual ~Watch() = default;
    };
    [[nodiscard]] virtual std::unique_ptr<Watch> watch(const QString &path, std::function<void()> callback) = 0;
};
