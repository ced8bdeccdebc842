// SPDX-License-Identifier: MIT
#pragma once

#include "store/JsonArrayFile.h"

#include <QList>
#include <QObject>
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
class GroupStore : public QObject {
    Q_OBJECT

public:
    GroupStore(Files &files, Preferences &preferences);

    const QList<DictationGroup> &groups() const { return m_groups; }
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

    QString filePath() const { return m_file.path(); }

Q_SIGNALS:
    void groupsChanged();
    void activeIdChanged();

private:
    void load();
    void save();

    Preferences &m_preferences;
    JsonArrayFile m_file;
    QList<DictationGroup> m_groups;
    std::optional<QString> m_activeId;
};
