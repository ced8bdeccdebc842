// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

/// A menu's key equivalent: one character, lower case; for Return "\r", Tab "\t", Delete "\b", and for the arrow keys
/// the arrow characters.
struct MenuShortcut {
    QString key;
    /// Hot-key masks (KeyCodes.h).
    uint32_t modifiers = 0;

    bool operator==(const MenuShortcut &) const = default;
};

/// One line of a menu. Titles are plain text, shown as they are.
struct MenuItem {
    enum class Kind { Text, Button, Choice, Separator, Submenu };

    Kind kind = Kind::Separator;
    QString title = {};
    std::function<void()> action = {};
    std::optional<MenuShortcut> shortcut = std::nullopt;
    bool isEnabled = true;
    /// The current one of the choices.
    bool isChecked = false;
    QList<MenuItem> children = {};
};
