// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/StatusItem.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QIcon>
#include <QObject>

class DBusMenu;
class StatusNotifierItem;
class XEmbedItem;

/// The item in whatever tray the desktop has, and in each that comes later: StatusNotifierItem where there is a host,
/// XEmbed otherwise. Needs a QApplication. Main thread only.
class TrayItem : public QObject, public StatusItem {
    Q_OBJECT

public:
    /// The clock outlives the item. Without a bus only XEmbed is tried.
    TrayItem(Clock &clock, QDBusConnection bus);
    ~TrayItem() override;

    void setLabel(const QString &symbol, const QString &title) override;
    void setMenu(const QList<MenuItem> &items) override;
    void setActivationHandler(std::function<void()> handler) override;

private Q_SLOTS:
    void askForHost();

private:
    void registerItem();
    void setHostPresent(bool isPresent);
    void showXEmbed();
    const QIcon &icon(const QString &symbol);

    Clock &m_clock;
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watchers;
    QObject m_itemObject;
    QObject m_menuObject;
    StatusNotifierItem *m_item;
    DBusMenu *m_menu;
    std::unique_ptr<Clock::Timer> m_patience;
    std::unique_ptr<XEmbedItem> m_xembed;
    QHash<QString, QIcon> m_icons;
    QString m_symbol;
    QString m_title;
    QList<MenuItem> m_items;
    std::function<void()> m_onActivation;
};
