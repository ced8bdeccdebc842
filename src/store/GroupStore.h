// SPDX-License-Identifier: MIT
#pragma once

#include "store/RecordStore.h"

#include <QList>
#include <QString>

#include <optional>
#include <set>

class Preferences;

/// A user-named folder of history entries.
struct DictationGroup {
    /// Random UUID, upper case.
    QString id;
    QString name;
    /// "folder" for every group made here; other values of a file are kept.
    QString kind;

    bool operator==(const DictationGroup &) const = default;
};

/// The ordered groups, mirrored in "groups.json", and the active one, remembered under the preference
/// "activeGroupId". No active group means "All entries". Main thread only; every change is stored before it returns.
class GroupStore final : public RecordStore<DictationGroup> {
    Q_OBJECT

public:
    GroupStore(Files &files, Preferences &preferences, Clock &clock);
    GroupStore(const GroupStore &) = delete;
    GroupStore &operator=(const GroupStore &) = delete;
    ~GroupStore() override { saveAtEnd(); }

    const QList<DictationGroup> &groups() const { return records(); }
    const std::optional<QString> &activeId() const { return m_activeId; }
    void setActiveId(const std::optional<QString> &id);

    /// The first group with that id; nothing without an id or for an unknown one.
    std::optional<DictationGroup> group(const std::optional<QString> &id) const;

    /// Appends a group; the name is stored as given.
    DictationGroup add(const QString &name);
    void rename(const QString &id, const QString &name);

    /// Removes the group and makes "All entries" active if it was the active one. Its entries keep their group id.
    void remove(const QString &id);

    /// Reorders as a list's drag and drop does: the groups at `sources` go, in their order, before the group that was
    /// at `destination`; `destination` equal to the count means the end. Positions outside the list are ignored.
    void move(const std::set<qsizetype> &sources, qsizetype destination);

    /// Makes the next or previous position active, "All entries" included, wrapping around.
    void cycle(bool forward);

Q_SIGNALS:
    void groupsChanged();
    void activeIdChanged();

private:
    void change(Change change);
    std::optional<DictationGroup> decode(const JsonRecord &object) const override;
    void announce() override;
    QList<QByteArrayView> encoded() override;

    Preferences &m_preferences;
    QByteArray m_json;
    std::optional<QString> m_activeId;
};
