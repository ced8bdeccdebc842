// SPDX-License-Identifier: MIT
#include "store/FileStore.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto retryPeriod = std::chrono::minutes(1);
constexpr qsizetype mostDamagedFiles = 5;
constexpr auto damagedSuffix = ".damaged-"_L1;

} // namespace

FileStore::FileStore(Files &files, Clock &clock, const QString &fileName, Words words)
    : m_files(files),
      m_clock(clock),
      m_words(std::move(words)),
      m_folder(files.applicationSupportFolder() + u"/Quillo"_s),
      m_path(m_folder + u'/' + fileName)
{
    m_files.createFolder(m_folder);
}

QString FileStore::notice() const
{
    if (m_saveError) {
        return m_words.unsaved;
    }
    return m_isDamaged ? m_words.damaged : QString();
}

Finding FileStore::examine() const
{
    const QString &subject = m_words.subject;
    if (m_isDamaged) {
        return {subject, Finding::Level::Note, Finding::tr("%1 can't be read").arg(m_path),
                Finding::tr("it is kept; to take over what can be read: quillo history --recover %1").arg(m_path)};
    }
    if (!QFileInfo(m_folder).isWritable()) {
        return {subject, Finding::Level::Note, Finding::tr("%1 can't be written: nothing new is kept").arg(m_folder),
                Finding::tr("make it yours: chown and chmod u+rwx")};
    }
    // A save writes a whole new file before the old one goes.
    if (QStorageInfo(m_folder).bytesAvailable() < QFileInfo(m_path).size() + 4096) {
        return {subject, Finding::Level::Note, Finding::tr("%1: the disk is full, nothing new is kept").arg(m_path),
                Finding::tr("make room")};
    }
    if (const QStringList damaged = damagedFiles(); !damaged.isEmpty()) {
        return {subject, Finding::Level::Good,
                Finding::tr("%1; put aside because it couldn't be read: %2").arg(m_path, damaged.join(u", "_s))};
    }
    return {subject, Finding::Level::Good, m_path};
}

void FileStore::load()
{
    refresh();
    m_watch = m_files.watch(m_path, [this] {
        const auto before = trouble();
        if (refresh()) {
            announce();
        }
        tellIfNot(before);
    });
}

bool FileStore::save()
{
    const auto before = trouble();
    const bool isFolderMissing = !QFileInfo(m_folder).isDir();
    if (isFolderMissing) {
        m_files.createFolder(m_folder);
    }
    bool isReplaced = false;
    {
        const auto lock = m_files.lock(m_folder);
        isReplaced = refresh();
        m_saveError = write();
    }
    if (isFolderMissing) {
        load(); // what was watched is gone
    }
    tellIfNot(before);
    return isReplaced;
}

void FileStore::saveAtEnd()
{
    if (m_saveError) {
        const QSignalBlocker blocker(this);
        save();
    }
}

/// Takes over what others have written; true when there was something.
bool FileStore::refresh()
{
    const QByteArray stamp = m_files.stamp(m_path);
    if (stamp == m_stamp) {
        return false;
    }
    m_stamp = stamp;
    m_isDamaged = false;
    if (stamp.isEmpty()) {
        return false; // somebody removed the file, hardly every entry: what is in memory stands
    }
    QFile file(m_path);
    m_isDamaged = !file.open(QIODevice::ReadOnly) || (file.size() > 0 && !adopt(file.readAll()));
    return !m_isDamaged;
}

std::error_code FileStore::write()
{
    if (m_isDamaged && !putAside()) {
        return std::make_error_code(std::errc::permission_denied);
    }
    m_isDamaged = false;
    const std::error_code error = m_files.replace(m_path, encoded());
    m_stamp = m_files.stamp(m_path);
    if (!error) {
        m_retry.reset();
        forgetChanges();
    } else if (!m_retry) {
        m_retry = m_clock.every(retryPeriod, [this] {
            if (save()) {
                announce();
            }
        });
    }
    return error;
}

bool FileStore::putAside() const
{
    const QString file = QFileInfo(m_path).canonicalFilePath();
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(m_clock.now().time_since_epoch().count()).toUTC();
    if (!QFile::rename(file, file + damagedSuffix + now.toString(u"yyyyMMdd'T'HHmmss.zzz'Z'"))) {
        return false;
    }
    QStringList damaged = damagedFiles();
    while (damaged.size() > mostDamagedFiles) {
        QFile::remove(damaged.takeFirst());
    }
    return true;
}

/// The oldest first: the time is in the name.
QStringList FileStore::damagedFiles() const
{
    const QFileInfo file(m_path);
    const QDir folder = QFileInfo(file.symLinkTarget().isEmpty() ? m_path : file.symLinkTarget()).dir();
    QStringList damaged;
    for (const QString &name : folder.entryList({file.fileName() + damagedSuffix + u'*'}, QDir::Files, QDir::Name)) {
        damaged.append(folder.filePath(name));
    }
    return damaged;
}

void FileStore::tellIfNot(const std::pair<bool, std::error_code> &before)
{
    if (trouble() != before) {
        Q_EMIT noticeChanged();
    }
}
