// SPDX-License-Identifier: MIT
#pragma once

#include "store/JsonArrayFile.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

class Clock;

/// One dictated text of the history.
struct Transcription {
    /// Random UUID, upper case.
    QString id;
    QString text;
    /// ISO 8601 in UTC with whole seconds, "2026-01-31T12:00:00Z".
    QString timestamp;
    /// Identifier of the group the entry is filed under; it may name a group that no longer exists.
    std::optional<QString> categoryId;

    bool operator==(const Transcription &) const = default;
};

/// The dictation history, newest first, mirrored in "transcriptions.json": the file is rewritten before a change
/// returns. Main thread only. Failing reads give an empty history, failing writes are silent.
class TranscriptionStore : public QObject {
    Q_OBJECT

public:
    TranscriptionStore(Files &files, const Clock &clock);

    const QList<Transcription> &items() const { return m_items; }

    /// The entries of one group, in order; without a group, all.
    QList<Transcription> items(const std::optional<QString> &groupId) const;

    /// Puts a new entry at the front.
    void add(const QString &text, const std::optional<QString> &groupId);

    /// Files the entry under a group, or under none. An unknown id changes nothing.
    void move(const QString &id, const std::optional<QString> &groupId);

    void remove(const QString &id);
    void clear();

    QString filePath() const { return m_file.path(); }

Q_SIGNALS:
    void itemsChanged();

    // What changed, for a list that shows it: exactly one of these follows every `itemsChanged`, each with the place of
    // the entry in `items`.
    void added();
    void changed(qsizetype place);
    void removed(qsizetype place);
    /// Anything else.
    void reset();

private:
    void load();
    void encodeAll();
    void save();

    const Clock &m_clock;
    JsonArrayFile m_file;
    QList<Transcription> m_items;
    /// What the file holds between its brackets. Kept, so that a new entry costs the encoding of that entry alone.
    QByteArray m_entriesJson;
};
