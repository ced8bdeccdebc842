// SPDX-License-Identifier: MIT
#include "platform/tray/DBusMenuLayout.h"

#include <QDBusMetaType>
#include <QDBusVariant>

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuProperties &item)
{
    argument.beginStructure();
    argument << item.id << item.values;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuProperties &item)
{
    argument.beginStructure();
    argument >> item.id >> item.values;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuRemovals &item)
{
    argument.beginStructure();
    argument << item.id << item.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuRemovals &item)
{
    argument.beginStructure();
    argument >> item.id >> item.names;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &item)
{
    argument.beginStructure();
    argument << item.id << item.values;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const DBusMenuLayout &child : item.children) {
        argument << QDBusVariant(QVariant::fromValue(child));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &item)
{
    argument.beginStructure();
    argument >> item.id >> item.values;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        item.children.append(qdbus_cast<DBusMenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.event << QDBusVariant(event.data) << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event)
{
    QDBusVariant data;
    argument.beginStructure();
    argument >> event.id >> event.event >> data >> event.timestamp;
    argument.endStructure();
    event.data = data.variant();
    return argument;
}

void registerDBusMenuTypes()
{
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<QList<DBusMenuProperties>>();
    qDBusRegisterMetaType<DBusMenuRemovals>();
    qDBusRegisterMetaType<QList<DBusMenuRemovals>>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
}
