// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MenuItem.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <variant>

struct KeyEvent;

/// A modifier key that can be a shortcut by itself.
enum class ModifierKey { RightOption, RightCommand, RightControl, Fn };

/// What the program knows of a ModifierKey.
struct ModifierKeyInfo {
    ModifierKey key;
    /// Name in stored shortcuts.
    QStringView rawValue;
    /// Display text as the sources have it.
    const char *sourceLabel;
    /// Virtual key code, and the event-flag bit that is set while this very key is held (KeyCodes.h).
    uint16_t keyCode;
    uint32_t flag;

    QString label() const;
};

/// All modifier keys, in the order in which they are offered.
const std::array<ModifierKeyInfo, 4> &modifierKeys();
const ModifierKeyInfo &info(ModifierKey key);

/// How the dictation shortcut is used.
enum class TriggerMode { Both, Hold, Toggle };

struct TriggerModeInfo {
    TriggerMode mode;
    /// Name in the preferences.
    QStringView rawValue;
    /// Display text as the sources have it.
    const char *sourceLabel;

    QString label() const;
};

const std::array<TriggerModeInfo, 3> &triggerModes();
const TriggerModeInfo &info(TriggerMode mode);

/// What happens to the dictation shortcut. `Interrupted`: a single modifier key reported as pressed has been used
/// together with another key; no `Released` follows.
enum class ShortcutEvent { Pressed, Released, Interrupted };

/// A key combination or a single modifier key.
class Shortcut {
    Q_DECLARE_TR_FUNCTIONS(Shortcut)

public:
    struct Combo {
        /// Virtual key code of the physical key.
        uint32_t keyCode = 0;
        /// Hot-key masks (KeyCodes.h).
        uint32_t modifiers = 0;
        /// The key's name as it was when the shortcut was recorded; never recomputed.
        QString key;

        bool operator==(const Combo &) const = default;
    };

    /// Why a key press can't become a shortcut.
    enum class Rejection { EscapeReserved, NeedsModifier };

    using MenuShortcut = ::MenuShortcut;

    static Shortcut combo(uint32_t keyCode, uint32_t modifiers, const QString &key);
    static Shortcut modifier(ModifierKey key);

    /// The shortcut that a key-down event stands for.
    static std::variant<Shortcut, Rejection> recorded(const KeyEvent &event);

    /// Reads the stored JSON form; nothing for anything else.
    static std::optional<Shortcut> fromJson(const QByteArray &json);
    QByteArray toJson() const;

    /// Display text: "⌃⌥ Space", or what the person's keyboard says for it.
    QString label() const;

    std::optional<MenuShortcut> menuShortcut() const;

    /// Null for a shortcut of the other kind.
    const Combo *asCombo() const { return std::get_if<Combo>(&m_value); }
    const ModifierKey *asModifier() const { return std::get_if<ModifierKey>(&m_value); }

    bool operator==(const Shortcut &) const = default;

private:
    explicit Shortcut(std::variant<Combo, ModifierKey> value) : m_value(std::move(value)) {}

    std::variant<Combo, ModifierKey> m_value;
};

/// The text that explains a rejection.
QString message(Shortcut::Rejection rejection);
