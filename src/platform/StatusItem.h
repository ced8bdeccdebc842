// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MenuItem.h"

/// The program's item in the desktop's panel, with a pull-down menu. It shows itself where and when there is a panel
/// for it, also one that comes later. Main thread only; actions are called from the event loop.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// `symbol` names one of the program's symbols. `title` stands beside it where the panel can show text.
    virtual void setLabel(const QString &symbol, const QString &title) = 0;
    /// Replaces the menu, also an open one.
    virtual void setMenu(const QList<MenuItem> &items) = 0;
    /// What a panel that does not open the menu at a click does instead.
    virtual void setActivationHandler(std::function<void()> handler) = 0;
};
