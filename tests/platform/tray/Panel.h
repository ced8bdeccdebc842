// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray/DBusMenuLayout.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <utility>

/// A panel on the session bus: it watches for items and shows them, until it is destroyed. Each has a connection of its
/// own, as another process would.
class Panel : public QObject {
    Q_OBJECT

public:
    enum class Host { There, Absent };

    /// Without a host only the registry runs and nobody shows the items. The address is that of another session than
    /// this process's own.
    explicit Panel(Host host = Host::There, const QString &busAddress = {});
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;
    ~Panel() override;

    const QStringList &items() const { return m_items; }
    void addHost();

    /// Names of the signals that items and their menus sent since the last call.
    QStringList takeSignals() { return std::exchange(m_signals, {}); }
    /// What the last signal of a menu that changed in place said, by item.
    const QMap<int, QVariantMap> &updates() const { return m_updates; }

    /// Calls what the last registered item offers, while the event loop runs; throws std::runtime_error for an error.
    QVariantList call(const QString &path, const QString &interface, const QString &method,
                      const QVariantList &arguments = {});
    /// The item's menu, all the way down.
    DBusMenuLayout menu();
    /// Chooses an item of the menu by its number.
    void choose(int id);
    /// All properties of an interface.
    QVariantMap properties(const QString &path, const QString &interface);

private Q_SLOTS:
    void take(const QDBusMessage &signal);

private:
    friend class PanelInterface;

    void add(const QString &item);

    QString m_name;
    QDBusConnection m_bus;
    QStringList m_items;
    QStringList m_signals;
    QMap<int, QVariantMap> m_updates;
    bool m_hasHost;
};

class PanelInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit PanelInterface(Panel &panel) : QDBusAbstractAdaptor(&panel), m_panel(panel) {}

    bool hasHost() const { return m_panel.m_hasHost; }

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus
    void RegisterStatusNotifierItem(const QString &service) { m_panel.add(service); }

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    // NOLINTEND(readability-identifier-naming)

private:
    Panel &m_panel;
};
