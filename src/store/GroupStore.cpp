// SPDX-License-Identifier: MIT
#include "store/GroupStore.h"

#include "platform/Preferences.h"

#include <QJsonDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString activeIdKey = u"activeGroupId"_s;

std::optional<DictationGroup> decode(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const auto id = stringAt(object, u"id"_s);
    const auto name = stringAt(object, u"name"_s);
    const auto kind = stringAt(object, u"kind"_s);
    return id && name && kind ? std::optional(DictationGroup{*id, *name, *kind}) : std::nullopt;
}

} // namespace

GroupStore::GroupStore(Files &files, Preferences &preferences)
    : m_preferences(preferences), m_file(files, u"groups.json"_s)
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
        std::ranges::find_if(m_groups, [&](const DictationGroup &candidate) { return candidate.id == id; });
    return found == m_groups.end() ? std::nullopt : std::optional(*found);
}

DictationGroup GroupStore::add(const QString &name)
{
    DictationGroup added{newIdentifier(), name, u"folder"_s};
    m_groups.append(added);
    save();
    return added;
}

void GroupStore::rename(const QString &id, const QString &name)
{
    const auto found = std::ranges::find(m_groups, id, &DictationGroup::id);
    if (found != m_groups.end()) {
        found->name = name;
        save();
    }
}

void GroupStore::remove(const QString &id)
{
    m_groups.removeIf([&](const DictationGroup &candidate) { return candidate.id == id; });
    if (m_activeId == id) {
        setActiveId(std::nullopt);
    }
    save();
}

void GroupStore::move(const std::set<qsizetype> &sources, qsizetype destination)
{
    QList<DictationGroup> before;
    QList<DictationGroup> moved;
    QList<DictationGroup> after;
    for (qsizetype i = 0; i < m_groups.size(); ++i) {
        auto &place = sources.contains(i) ? moved : i < destination ? before : after;
        place.append(m_groups.at(i));
    }
    m_groups = before + moved + after;
    save();
}

void GroupStore::cycle(bool forward)
{
    QList<std::optional<QString>> positions{std::nullopt};
    for (const DictationGroup &candidate : std::as_const(m_groups)) {
        positions.append(candidate.id);
    }
    const qsizetype current = std::max<qsizetype>(positions.indexOf(m_activeId), 0);
    const qsizetype step = forward ? 1 : positions.size() - 1;
    setActiveId(positions.at((current + step) % positions.size()));
}

void GroupStore::load()
{
    const auto stored = m_file.read();
    if (!stored) {
        return;
    }
    QList<DictationGroup> groups;
    for (const auto &value : *stored) {
        const auto group = decode(value);
        if (!group) {
            return; // one bad element makes the whole file unreadable
        }
        groups.append(*group);
    }
    m_groups = std::move(groups);
}

void GroupStore::save()
{
    QJsonArray array;
    for (const DictationGroup &group : std::as_const(m_groups)) {
        array.append(QJsonObject{{u"id"_s, group.id}, {u"name"_s, group.name}, {u"kind"_s, group.kind}});
    }
    m_file.write({QJsonDocument(array).toJson(QJsonDocument::Compact)});
    Q_EMIT groupsChanged();
}
