// SPDX-License-Identifier: MIT
#include "platform/freedesktop/XdgFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool writeDurably(const QByteArray &path, const QList<QByteArrayView> &pieces)
{
    const Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    // An old temporary file, left by a crash, keeps its own mode when it is opened again.
    if (!file.isOpen() || !file.restrictToOwner()) {
        return false;
    }
    return std::ranges::all_of(pieces, [&](QByteArrayView piece) { return file.write(piece); }) && file.sync();
}

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

bool XdgFiles::replace(const QString &path, const QList<QByteArrayView> &pieces)
{
    // One fixed name beside the file: what a crash leaves behind is overwritten by the next save.
    const QByteArray target = QFile::encodeName(path);
    const QByteArray temporary = target + ".new";
    if (!writeDurably(temporary, pieces) || ::rename(temporary.constData(), target.constData()) != 0) {
        ::unlink(temporary.constData());
        return false;
    }
    // The rename itself is on disk only once the folder is.
    const Descriptor folder(QFile::encodeName(QFileInfo(path).path()), O_RDONLY | O_DIRECTORY);
    return folder.isOpen() && folder.sync();
}
