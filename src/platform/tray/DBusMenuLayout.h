// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QVariantMap>

// The structures of com.canonical.dbusmenu.

struct DBusMenuProperties { // (ia{sv})
    int id = 0;
    QVariantMap values;
};

struct DBusMenuRemovals { // (ias)
    int id = 0;
    QStringList names;
};

struct DBusMenuLayout { // (ia{sv}av)
    int id = 0;
    QVariantMap values;
    QList<DBusMenuLayout> children;
};

struct DBusMenuEvent { // (isvu)
    int id = 0;
    QString event;
    QVariant data;
    uint timestamp = 0;
};

Q_DECLARE_METATYPE(DBusMenuProperties)
Q_DECLARE_METATYPE(DBusMenuRemovals)
Q_DECLARE_METATYPE(DBusMenuLayout)
Q_DECLARE_METATYPE(DBusMenuEvent)

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuProperties &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuProperties &item);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuRemovals &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuRemovals &item);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &item);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event);

/// To be called before the first of them is sent.
void registerDBusMenuTypes();
