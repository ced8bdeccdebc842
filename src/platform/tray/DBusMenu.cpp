// SPDX-License-Identifier: MIT
#include "platform/tray/DBusMenu.h"

#include "platform/KeyCodes.h"

#include <QDBusMetaType>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// One list of keys, as the menu's protocol has them: modifiers by name, then the key's X name.
QList<QStringList> wireShortcut(const MenuShortcut &shortcut)
{
    static const std::initializer_list<std::pair<uint32_t, QString>> modifiers{{HotKeyModifier::control, u"Control"_s},
                                                                               {HotKeyModifier::option, u"Alt"_s},
                                                                               {HotKeyModifier::shift, u"Shift"_s},
                                                                               {HotKeyModifier::command, u"Super"_s}};
    static const std::initializer_list<std::pair<QStringView, QString>> names{
        {u" ", u"space"_s}, {u"\r", u"Return"_s}, {u"\t", u"Tab"_s}, {u"\b", u"BackSpace"_s}, {u",", u"comma"_s},
        {u"←", u"Left"_s},  {u"→", u"Right"_s},   {u"↑", u"Up"_s},   {u"↓", u"Down"_s}};
    QStringList keys;
    for (const auto &[mask, name] : modifiers) {
        if ((shortcut.modifiers & mask) != 0) {
            keys.append(name);
        }
    }
    const auto *const named = std::ranges::find_if(names, [&](const auto &row) { return row.first == shortcut.key; });
    keys.append(named == names.end() ? shortcut.key : named->second);
    return {keys};
}

QVariantMap valuesOf(const MenuItem &item)
{
    if (item.kind == MenuItem::Kind::Separator) {
        return {{u"type"_s, u"separator"_s}};
    }
    // Underscores mark access keys.
    QVariantMap values{{u"label"_s, QString(item.title).replace(u'_', u"__"_s)}};
    if (item.kind == MenuItem::Kind::Text || !item.isEnabled) {
        values.insert(u"enabled"_s, false);
    }
    if (item.kind == MenuItem::Kind::Choice) {
        values.insert(u"toggle-type"_s, u"radio"_s);
        values.insert(u"toggle-state"_s, item.isChecked ? 1 : 0);
    }
    if (item.kind == MenuItem::Kind::Submenu) {
        values.insert(u"children-display"_s, u"submenu"_s);
    }
    if (item.shortcut) {
        values.insert(u"shortcut"_s, QVariant::fromValue(wireShortcut(*item.shortcut)));
    }
    return values;
}

/// No names asks for all.
QVariantMap only(const QVariantMap &values, const QStringList &names)
{
    if (names.isEmpty()) {
        return values;
    }
    QVariantMap chosen;
    for (const QString &name : names) {
        if (values.contains(name)) {
            chosen.insert(name, values.value(name));
        }
    }
    return chosen;
}

QStringList missing(const QVariantMap &earlier, const QVariantMap &now)
{
    QStringList names;
    for (const QString &name : earlier.keys()) {
        if (!now.contains(name)) {
            names.append(name);
        }
    }
    return names;
}

} // namespace

DBusMenu::DBusMenu(QObject *object) : QDBusAbstractAdaptor(object)
{
    registerDBusMenuTypes();
    qDBusRegisterMetaType<QList<QStringList>>();
    append({.kind = MenuItem::Kind::Submenu});
}

QString DBusMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

void DBusMenu::setItems(const QList<MenuItem> &items)
{
    const std::vector<Entry> earlier = std::exchange(m_entries, {});
    append({.kind = MenuItem::Kind::Submenu, .children = items});

    const bool isSameShape = std::ranges::equal(earlier, m_entries, {}, &Entry::children, &Entry::children);
    if (!isSameShape) {
        m_offset += static_cast<int>(earlier.size()) - 1;
        Q_EMIT LayoutUpdated(++m_revision, 0);
        return;
    }
    QList<DBusMenuProperties> updated;
    QList<DBusMenuRemovals> removed;
    for (size_t place = 0; place < m_entries.size(); ++place) {
        const QVariantMap &before = earlier[place].values;
        const QVariantMap &now = m_entries[place].values;
        if (before == now) {
            continue;
        }
        updated.append({id(place), now});
        if (const QStringList names = missing(before, now); !names.isEmpty()) {
            removed.append({id(place), names});
        }
    }
    if (!updated.isEmpty()) {
        Q_EMIT ItemsPropertiesUpdated(updated, removed);
    }
}

size_t DBusMenu::append(const MenuItem &item)
{
    const auto place = m_entries.size();
    m_entries.push_back({item, valuesOf(item), {}});
    std::vector<size_t> children;
    children.reserve(static_cast<size_t>(item.children.size()));
    for (const MenuItem &child : item.children) {
        children.push_back(append(child));
    }
    m_entries[place].children = std::move(children);
    return place;
}

const DBusMenu::Entry *DBusMenu::find(int id) const
{
    const int place = id == 0 ? 0 : id - m_offset;
    const bool isThere = id == 0 || (place > 0 && static_cast<size_t>(place) < m_entries.size());
    return isThere ? &m_entries[static_cast<size_t>(place)] : nullptr;
}

DBusMenuLayout DBusMenu::layoutOf(int id, const Entry &entry, int depth) const
{
    DBusMenuLayout layout{id, entry.values, {}};
    if (depth != 0) { // below zero: all the way down
        for (const size_t child : entry.children) {
            layout.children.append(layoutOf(this->id(child), m_entries[child], depth - 1));
        }
    }
    return layout;
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList & /*propertyNames*/,
                         DBusMenuLayout &layout) const
{
    // All properties, whatever was asked for: there are few, and panels pick what they know.
    const Entry *entry = find(parentId);
    layout = entry != nullptr ? layoutOf(parentId, *entry, recursionDepth) : DBusMenuLayout();
    return m_revision;
}

QList<DBusMenuProperties> DBusMenu::GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames) const
{
    QList<DBusMenuProperties> properties;
    for (size_t place = 0; place < m_entries.size(); ++place) {
        if (ids.isEmpty() || ids.contains(id(place))) {
            properties.append({id(place), only(m_entries[place].values, propertyNames)});
        }
    }
    return properties;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString &name) const
{
    const Entry *entry = find(id);
    const QVariant value = entry != nullptr ? entry->values.value(name) : QVariant();
    return QDBusVariant(value.isValid() ? value : QVariant(QString())); // the bus has no empty variant
}

void DBusMenu::Event(int id, const QString &eventId, const QDBusVariant & /*data*/, uint /*timestamp*/)
{
    const Entry *entry = find(id);
    if (entry == nullptr || eventId != u"clicked") {
        return;
    }
    const MenuItem item = entry->item; // the action may replace the menu
    if (item.isEnabled && item.action) {
        item.action();
    }
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent> &events)
{
    QList<int> unknown;
    for (const DBusMenuEvent &event : events) {
        if (find(event.id) != nullptr) {
            Event(event.id, event.event, QDBusVariant(event.data), event.timestamp);
        } else {
            unknown.append(event.id);
        }
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int /*id*/) const
{
    return false; // what was sent is up to date
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int> & /*ids*/, QList<int> &idErrors) const
{
    idErrors.clear();
    return {};
}
