// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MenuItem.h"
#include "platform/tray/DBusMenuLayout.h"

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>

#include <vector>

/// A menu that a panel shows for us, over com.canonical.dbusmenu. Items are numbered from the top, submenus in place,
/// and 0 is the menu itself. A menu of another shape goes on counting, so that a panel which still shows the former one
/// can't choose the wrong item. Main thread only.
class DBusMenu : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    explicit DBusMenu(QObject *object);

    /// A panel that has the menu open shows the change: where only texts and states differ, item by item.
    void setItems(const QList<MenuItem> &items);

    static uint version() { return 3; }
    static QString textDirection();
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames, DBusMenuLayout &layout) const;
    QList<DBusMenuProperties> GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames) const;
    QDBusVariant GetProperty(int id, const QString &name) const;
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<DBusMenuEvent> &events);
    bool AboutToShow(int id) const;
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors) const;

Q_SIGNALS:
    void ItemsPropertiesUpdated(const QList<DBusMenuProperties> &updated, const QList<DBusMenuRemovals> &removed);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);
    // NOLINTEND(readability-identifier-naming)

private:
    struct Entry {
        MenuItem item;
        QVariantMap values;
        std::vector<size_t> children; // places
    };

    size_t append(const MenuItem &item);
    int id(size_t place) const { return place == 0 ? 0 : m_offset + static_cast<int>(place); }
    /// Null when the menu has no such item, or no longer.
    const Entry *find(int id) const;
    DBusMenuLayout layoutOf(int id, const Entry &entry, int depth) const;

    std::vector<Entry> m_entries; // by place
    int m_offset = 0;             // from an item's place to its number
    uint m_revision = 1;
};
