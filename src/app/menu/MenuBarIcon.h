// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class AppModel;

/// What the item in the panel shows: a symbol for the dictation state and the name of the active group.
struct MenuBarIcon {
    QString symbol;
    /// Cut after 20 characters; empty without an active group.
    QString title;

    static MenuBarIcon of(AppModel &model);
};
