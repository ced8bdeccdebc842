// SPDX-License-Identifier: MIT
#pragma once

#include "store/RecordStore.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

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
/// returns. Main thread only.
class TranscriptionStore final : public RecordStore<Transcription> {
    Q_OBJECT

public:
    TranscriptionStore(Files &files, Clock &clock);
    TranscriptionStore(const TranscriptionStore &) = delete;
    TranscriptionStore &operator=(const TranscriptionStore &) = delete;
    ~TranscriptionStore() override { saveAtEnd(); }

    const QList<Transcription> &items() const { return records(); }

    /// The entries of one group, in order; without a group, all.
    QList<Transcription> items(const std::optional<QString> &groupId) const;

    /// Puts a new entry at the front.
    void add(const QString &text, const std::optional<QString> &groupId);

    /// Files the entry under a group, or under none. An unknown id changes nothing.
    void move(const QString &id, const std::optional<QString> &groupId);

    void remove(const QString &id);
    void clear();

    /// Takes over the entries that can be read in a damaged history and are not there yet, each at the place of its
    /// time. How many; nothing when the file can't be opened.
    std::optional<qsizetype> recover(const QString &path);

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
    std::optional<Transcription> decode(const JsonRecord &object) const override;
    void replaced() override { encodeAll(); }
    void announce() override;
    QList<QByteArrayView> encoded() override { return {"[", m_entriesJson, "]"}; }

    void encodeAll();
    void saveAndTell(const std::function<void()> &tell);

    const Clock &m_clock;
    /// What the file holds between its brackets. Kept, so that a new entry costs the encoding of that entry alone.
    QByteArray m_entriesJson;
};
