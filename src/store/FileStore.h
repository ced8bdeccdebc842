// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Finding.h"

#include <QByteArrayView>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <system_error>
#include <utility>

/// A list in memory, mirrored in one JSON file of the program's data folder. Other logins of the user, other computers
/// and editors may write the file, too: what they did is taken over, when it is seen and before each save, and what was
/// changed here since the last save is done again on top of it. A file that can't be read is never overwritten: it is
/// put aside first. A change that can't be saved stays in memory and is tried again every minute and at the end.
/// Main thread only.
class FileStore : public QObject {
    Q_OBJECT

public:
    const QString &filePath() const { return m_path; }

    /// Why the last change is in memory only; no error once it is on disk.
    const std::error_code &saveError() const { return m_saveError; }

    /// The file was there and could not be read; it is put aside by the next change.
    bool isDamaged() const { return m_isDamaged; }

    /// For the user: what is wrong with the file; empty when nothing is.
    QString notice() const;

    /// Whether the list can be read and saved, and what was put aside.
    Finding examine() const;

Q_SIGNALS:
    /// Something else is wrong, or nothing any more.
    void noticeChanged();

protected:
    /// What the user is told of this list, in whole sentences: no language puts them together from parts.
    struct Words {
        /// Its name, as `examine` has it.
        QString subject;
        QString unsaved;
        QString damaged;
    };

    /// Creates the program's folder; a failure shows at the first save.
    FileStore(Files &files, Clock &clock, const QString &fileName, Words words);

    /// To be called once, by the constructor that knows how to decode.
    void load();

    /// True when the list is now another one than the change alone has made it: others had written meanwhile.
    bool save();

    /// To be called by the destructor that knows how to encode.
    void saveAtEnd();

    /// Replaces the list by the file's, with the unsaved changes done again. False, and nothing done, for a file that
    /// can't be read.
    virtual bool adopt(QByteArrayView json) = 0;
    /// Tells that the list was replaced, where no change is about to tell of itself.
    virtual void announce() = 0;
    virtual void forgetChanges() = 0;
    virtual QList<QByteArrayView> encoded() = 0;

private:
    bool refresh();
    std::error_code write();
    bool putAside() const;
    QStringList damagedFiles() const;
    std::pair<bool, std::error_code> trouble() const { return {m_isDamaged, m_saveError}; }
    void tellIfNot(const std::pair<bool, std::error_code> &before);

    Files &m_files;
    Clock &m_clock;
    Words m_words;
    QString m_folder;
    QString m_path;
    QByteArray m_stamp;
    bool m_isDamaged = false;
    std::error_code m_saveError;
    std::unique_ptr<Clock::Timer> m_retry;
    std::unique_ptr<Files::Watch> m_watch;
};
