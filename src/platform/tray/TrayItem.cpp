// SPDX-License-Identifier: MIT
#include "platform/tray/TrayItem.h"

#include "platform/tray/DBusMenu.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/XEmbedItem.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QImageReader>
#include <QPixmap>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString watcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;
const QString itemPath = u"/StatusNotifierItem"_s;
const QString menuPath = u"/MenuBar"_s;

// A panel that is being started, or restarted after a crash, is back by then.
constexpr auto patience = 3s;

constexpr std::initializer_list<int> sizes{16, 22, 24, 32, 48};

QIcon render(const QString &symbol)
{
    QIcon icon;
    for (const int size : sizes) {
        QImageReader reader(u":/quillo/tray/"_s + symbol + u".svg"_s, "svg");
        reader.setScaledSize({size, size});
        icon.addPixmap(QPixmap::fromImage(reader.read()));
    }
    return icon;
}

} // namespace

TrayItem::TrayItem(Clock &clock, QDBusConnection bus)
    : m_clock(clock),
      m_bus(std::move(bus)),
      m_watchers(watcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange),
      m_item(new StatusNotifierItem(&m_itemObject, menuPath)),
      m_menu(new DBusMenu(&m_menuObject))
{
    m_bus.registerObject(itemPath, &m_itemObject);
    m_bus.registerObject(menuPath, &m_menuObject);
    // Not serviceRegistered: a panel that waited for the name gets it without a moment in which nobody has it.
    connect(&m_watchers, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString & /*service*/, const QString & /*before*/, const QString &owner) {
                if (owner.isEmpty()) {
                    setHostPresent(false);
                } else {
                    registerItem();
                }
            });
    m_bus.connect(watcherService, watcherPath, watcherService, u"StatusNotifierHostRegistered"_s, this,
                  SLOT(askForHost()));
    m_bus.connect(watcherService, watcherPath, watcherService, u"StatusNotifierHostUnregistered"_s, this,
                  SLOT(askForHost()));
    setHostPresent(false);
    registerItem();
}

TrayItem::~TrayItem() = default;

void TrayItem::registerItem()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcherService, watcherPath, watcherService, u"RegisterStatusNotifierItem"_s);
    call << m_bus.baseService();
    call.setAutoStartService(false);
    m_bus.asyncCall(call);
    askForHost();
}

void TrayItem::askForHost()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcherService, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << watcherService << u"IsStatusNotifierHostRegistered"_s;
    call.setAutoStartService(false);
    auto *const answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        setHostPresent(reply.isValid() && reply.value().variant().toBool());
    });
}

void TrayItem::setHostPresent(bool isPresent)
{
    if (isPresent) {
        m_patience.reset();
        m_xembed.reset();
    } else if (!m_xembed && !m_patience) {
        m_patience = m_clock.after(patience, [this] { showXEmbed(); });
    }
}

void TrayItem::showXEmbed()
{
    m_patience.reset();
    m_xembed = std::make_unique<XEmbedItem>(m_onActivation);
    setLabel(m_symbol, m_title);
    m_xembed->setItems(m_items);
}

void TrayItem::setLabel(const QString &symbol, const QString &title)
{
    m_symbol = symbol;
    m_title = title;
    m_item->setContent(icon(symbol), title);
    if (m_xembed) {
        m_xembed->setContent(icon(symbol), m_item->title());
    }
}

void TrayItem::setMenu(const QList<MenuItem> &items)
{
    m_items = items;
    m_menu->setItems(items);
    if (m_xembed) {
        m_xembed->setItems(items);
    }
}

void TrayItem::setActivationHandler(std::function<void()> handler)
{
    m_onActivation = handler;
    m_item->setActivationHandler(std::move(handler));
}

const QIcon &TrayItem::icon(const QString &symbol)
{
    const auto known = m_icons.constFind(symbol);
    return known == m_icons.constEnd() ? *m_icons.insert(symbol, render(symbol)) : *known;
}
