// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MenuItem.h"

#include <QMenu>
#include <QSystemTrayIcon>

/// The item of a tray that takes windows in (XEmbed), with a menu of our own. Needs a QApplication. Main thread only.
class XEmbedItem {
public:
    explicit XEmbedItem(const std::function<void()> &onActivation);
    XEmbedItem(const XEmbedItem &) = delete;
    XEmbedItem &operator=(const XEmbedItem &) = delete;

    void setContent(const QIcon &icon, const QString &toolTip);
    /// An open menu stays open; where only texts and states differ, it is changed in place.
    void setItems(const QList<MenuItem> &items);

private:
    QMenu m_menu;
    QSystemTrayIcon m_icon;
};
