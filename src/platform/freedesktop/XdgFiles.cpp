// SPDX-License-Identifier: MIT
#include "platform/freedesktop/XdgFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

class Descriptor {
public:
    Descriptor(const QByteArray &path, int flags, mode_t mode = 0)
        : m_descriptor(::open(path.constData(), flags | O_CLOEXEC, mode))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    bool isOpen() const { return m_descriptor >= 0; }
    bool restrictToOwner() const { return ::fchmod(m_descriptor, S_IRUSR | S_IWUSR) == 0; }
    bool sync() const { return ::fsync(m_descriptor) == 0; }
    bool tryLock() const { return ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0; }

    bool write(QByteArrayView bytes) const
    {
        while (!bytes.isEmpty()) {
            const ssize_t written = ::write(m_descriptor, bytes.data(), size_t(bytes.size()));
            if (written < 0 && errno != EINTR) {
                return false;
            }
            bytes = bytes.sliced(std::max<ssize_t>(written, 0));
        }
        return true;
    }

private:
    int m_descriptor;
};

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

bool writeDurably(const QByteArray &path, const QList<QByteArrayView> &pieces)
{
    const Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (!file.isOpen() || !file.restrictToOwner()) {
        return false;
    }
    return std::ranges::all_of(pieces, [&](QByteArrayView piece) { return file.write(piece); }) && file.sync();
}

/// The file itself where `path` is a symbolic link, one that leads nowhere yet included.
QString withoutLinks(const QString &path)
{
    const QFileInfo info(path);
    if (QString existing = info.canonicalFilePath(); !existing.isEmpty()) {
        return existing;
    }
    return info.isSymLink() ? info.symLinkTarget() : path;
}

constexpr auto temporarySuffix = ".new-"_L1;

/// Temporary files of processes that ended before they could rename or remove them.
void removeLeftovers(const QString &path)
{
    const QFileInfo file(path);
    const QString start = file.fileName() + temporarySuffix;
    const QDir folder = file.dir();
    for (const QString &name : folder.entryList({start + u'*'}, QDir::Files | QDir::Hidden | QDir::System)) {
        const auto process = pid_t(name.sliced(start.size()).toInt());
        if (process > 0 && ::kill(process, 0) != 0 && errno == ESRCH) {
            QFile::remove(folder.filePath(name));
        }
    }
}

class FolderLock : public Files::Lock {
public:
    FolderLock(const QString &folder, std::chrono::milliseconds patience)
        : m_folder(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY)
    {
        using namespace std::chrono_literals;
        // A save takes milliseconds. Where locks don't work at all, trying again changes nothing.
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!m_folder.tryLock() && (errno == EWOULDBLOCK || errno == EINTR) &&
               std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(5ms);
        }
    }

private:
    Descriptor m_folder;
};

class FileWatch : public Files::Watch {
public:
    FileWatch(const QString &path, std::function<void()> callback) : m_path(path)
    {
        using namespace std::chrono_literals;
        m_quiet.setSingleShot(true);
        m_quiet.setInterval(100ms); // who writes in place takes a moment
        QObject::connect(&m_quiet, &QTimer::timeout, &m_quiet, std::move(callback));
        const auto heard = [this] {
            follow();
            m_quiet.start();
        };
        QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_quiet, heard);
        QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_quiet, heard);
        m_watcher.addPath(QFileInfo(path).path());
        follow();
    }

private:
    /// A file that was replaced is another one, to be watched anew.
    void follow()
    {
        if (QFileInfo::exists(m_path) && !m_watcher.files().contains(m_path)) {
            m_watcher.addPath(m_path);
        }
    }

    QString m_path;
    QTimer m_quiet;
    QFileSystemWatcher m_watcher;
};

} // namespace

QString XdgFiles::applicationSupportFolder() const
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString XdgFiles::temporaryFolder() const
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (qEnvironmentVariableIsEmpty("TMPDIR") && !runtime.isEmpty() && QFileInfo(runtime).isWritable()) {
        return QDir::cleanPath(runtime);
    }
    return QDir::tempPath();
}

bool XdgFiles::createFolder(const QString &path)
{
    const QString parent = QFileInfo(path).path();
    if (QFileInfo(path).isDir()) {
        return true;
    }
    if (parent != path && !createFolder(parent)) {
        return false;
    }
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || errno == EEXIST;
}

std::error_code XdgFiles::replace(const QString &path, const QList<QByteArrayView> &pieces)
{
    const QString file = withoutLinks(path);
    removeLeftovers(file);
    const QByteArray target = QFile::encodeName(file);
    // One name for each process: two that save at once don't write into each other's file.
    const QByteArray temporary = QFile::encodeName(file + temporarySuffix + QString::number(::getpid()));
    ::unlink(temporary.constData());
    if (!writeDurably(temporary, pieces) || ::rename(temporary.constData(), target.constData()) != 0) {
        const std::error_code error = lastError();
        ::unlink(temporary.constData());
        return error;
    }
    // The rename itself is on disk only once the folder is.
    const Descriptor folder(QFile::encodeName(QFileInfo(file).path()), O_RDONLY | O_DIRECTORY);
    return folder.isOpen() && folder.sync() ? std::error_code() : lastError();
}

std::unique_ptr<Files::Lock> XdgFiles::lock(const QString &folder)
{
    return std::make_unique<FolderLock>(folder, m_lockPatience);
}

QByteArray XdgFiles::stamp(const QString &path) const
{
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    QByteArray stamp;
    for (const qint64 part : {qint64(status.st_dev), qint64(status.st_ino), qint64(status.st_size),
                              qint64(status.st_mtim.tv_sec), qint64(status.st_mtim.tv_nsec)}) {
        stamp += QByteArray::number(part) + ' ';
    }
    return stamp;
}

std::unique_ptr<Files::Watch> XdgFiles::watch(const QString &path, std::function<void()> callback)
{
    return std::make_unique<FileWatch>(path, std::move(callback));
}
