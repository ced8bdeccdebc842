// SPDX-License-Identifier: MIT
#include "Panel.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusVariant>
#include <QUuid>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString watcher = u"org.kde.StatusNotifierWatcher"_s;

/// What panels expect on the wire. This test shares its decoding with the program, so a wrong type would go unnoticed.
void requireSignature(const QDBusMessage &message, const QString &member)
{
    static const QMap<QString, QString> signatures{{u"GetLayout"_s, u"u(ia{sv}av)"_s},
                                                   {u"GetAll"_s, u"a{sv}"_s},
                                                   {u"GetGroupProperties"_s, u"a(ia{sv})"_s},
                                                   {u"AboutToShow"_s, u"b"_s},
                                                   {u"ItemsPropertiesUpdated"_s, u"a(ia{sv})a(ias)"_s},
                                                   {u"LayoutUpdated"_s, u"ui"_s},
                                                   {u"NewTitle"_s, QString()},
                                                   {u"NewStatus"_s, u"s"_s}};
    if (message.signature() != signatures.value(member, message.signature())) {
        throw std::runtime_error(u"%1 is of type %2"_s.arg(member, message.signature()).toStdString());
    }
}

} // namespace

Panel::Panel(Host host, const QString &busAddress)
    : m_name(QUuid::createUuid().toString()),
      m_bus(busAddress.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_name)
                                 : QDBusConnection::connectToBus(busAddress, m_name)),
      m_hasHost(host == Host::There)
{
    new PanelInterface(*this); // a child, like every adaptor
    m_bus.registerObject(u"/StatusNotifierWatcher"_s, this);
    // As panels do: the second one waits until the first is gone.
    m_bus.interface()->registerService(watcher, QDBusConnectionInterface::QueueService);
}

Panel::~Panel()
{
    QDBusConnection::disconnectFromBus(m_name);
}

void Panel::addHost()
{
    m_hasHost = true;
    Q_EMIT findChild<PanelInterface *>()->StatusNotifierHostRegistered();
}

void Panel::add(const QString &item)
{
    m_items.append(item);
    for (const QString &interface : {u"org.kde.StatusNotifierItem"_s, u"com.canonical.dbusmenu"_s}) {
        m_bus.connect(item, QString(), interface, QString(), this, SLOT(take(QDBusMessage)));
    }
}

void Panel::take(const QDBusMessage &signal)
{
    requireSignature(signal, signal.member());
    m_signals.append(signal.member());
    if (signal.member() == u"ItemsPropertiesUpdated") {
        m_updates.clear();
        for (const DBusMenuProperties &item : qdbus_cast<QList<DBusMenuProperties>>(signal.arguments().first())) {
            m_updates.insert(item.id, item.values);
        }
    }
}

QVariantList Panel::call(const QString &path, const QString &interface, const QString &method,
                         const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(m_items.last(), path, interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(message, QDBus::BlockWithGui); // the item answers from the same thread
    if (reply.type() != QDBusMessage::ReplyMessage) {
        throw std::runtime_error(reply.errorMessage().toStdString());
    }
    requireSignature(reply, method);
    return reply.arguments();
}

DBusMenuLayout Panel::menu()
{
    const auto reply = call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {0, -1, QStringList()});
    return qdbus_cast<DBusMenuLayout>(reply.at(1));
}

void Panel::choose(int id)
{
    call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s,
         {id, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
}

QVariantMap Panel::properties(const QString &path, const QString &interface)
{
    return qdbus_cast<QVariantMap>(call(path, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, {interface}).first());
}
