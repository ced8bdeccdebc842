// SPDX-License-Identifier: MIT
#include "store/GroupStore.h"

#include "platform/Preferences.h"
#include "store/newIdentifier.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString activeIdKey = u"activeGroupId"_s;

} // namespace

GroupStore::GroupStore(Files &files, Preferences &preferences, Clock &clock)
    : RecordStore(files, clock, u"groups.json"_s,
                  {tr("Groups"), tr("Kept in memory: the groups can't be saved"),
                   tr("The groups can't be read: a new one begins, the old file is kept")}),
      m_preferences(preferences)
{
    load();
    const auto stored = group(m_preferences.string(activeIdKey));
    setActiveId(stored ? std::optional(stored->id) : std::nullopt);
}

void GroupStore::setActiveId(const std::optional<QString> &id)
{
    const bool changed = m_activeId != id;
    m_activeId = id;
    if (id) {
        m_preferences.setString(activeIdKey, *id);
    } else {
        m_preferences.remove(activeIdKey);
    }
    if (changed) {
        Q_EMIT activeIdChanged();
    }
}

std::optional<DictationGroup> GroupStore::group(const std::optional<QString> &id) const
{
    const auto found =
        std::ranges::find_if(groups(), [&](const DictationGroup &candidate) { return candidate.id == id; });
    return found == groups().end() ? std::nullopt : std::optional(*found);
}

DictationGroup GroupStore::add(const QString &name)
{
    DictationGroup added{newIdentifier(), name, u"folder"_s};
    change([added](QList<DictationGroup> &groups) { groups.append(added); });
    return added;
}

void GroupStore::rename(const QString &id, const QString &name)
{
    if (!group(id)) {
        return;
    }
    change([id, name](QList<DictationGroup> &groups) {
        const auto found = std::ranges::find(groups, id, &DictationGroup::id);
        if (found != groups.end()) {
            found->name = name;
        }
    });
}

void GroupStore::remove(const QString &id)
{
    if (m_activeId == id) {
        setActiveId(std::nullopt);
    }
    change([id](QList<DictationGroup> &groups) {
        groups.removeIf([&](const DictationGroup &candidate) { return candidate.id == id; });
    });
}

void GroupStore::move(const std::set<qsizetype> &sources, qsizetype destination)
{
    // By identifier, as the places in a file that somebody else has written meanwhile may be others.
    QStringList order;
    for (const bool isBefore : {true, false}) {
        for (qsizetype i = 0; i < groups().size(); ++i) {
            if (!sources.contains(i) && (i < destination) == isBefore) {
                order.append(groups().at(i).id);
            }
        }
        for (qsizetype i = 0; isBefore && i < groups().size(); ++i) {
            if (sources.contains(i)) {
                order.append(groups().at(i).id);
            }
        }
    }
    change([order](QList<DictationGroup> &groups) {
        const auto place = [&](const DictationGroup &group) {
            const qsizetype found = order.indexOf(group.id);
            return found < 0 ? order.size() : found;
        };
        std::ranges::stable_sort(groups, {}, place);
    });
}

void GroupStore::cycle(bool forward)
{
    QList<std::optional<QString>> positions{std::nullopt};
    for (const DictationGroup &candidate : groups()) {
        positions.append(candidate.id);
    }
    const qsizetype current = std::max<qsizetype>(positions.indexOf(m_activeId), 0);
    const qsizetype step = forward ? 1 : positions.size() - 1;
    setActiveId(positions.at((current + step) % positions.size()));
}

void GroupStore::change(Change change)
{
    apply(std::move(change));
    save();
    announce();
}

std::optional<DictationGroup> GroupStore::decode(const JsonRecord &object) const
{
    const auto id = object.string("id");
    const auto name = object.string("name");
    const auto kind = object.string("kind");
    return id && name && kind ? std::optional(DictationGroup{*id, *name, *kind}) : std::nullopt;
}

void GroupStore::announce()
{
    Q_EMIT groupsChanged();
    if (m_activeId && !group(m_activeId)) {
        setActiveId(std::nullopt); // removed elsewhere
    }
}

QList<QByteArrayView> GroupStore::encoded()
{
    QJsonArray array;
    for (const DictationGroup &group : groups()) {
        array.append(QJsonObject{{u"id"_s, group.id}, {u"name"_s, group.name}, {u"kind"_s, group.kind}});
    }
    m_json = QJsonDocument(array).toJson(QJsonDocument::Compact);
    return {m_json};
}
