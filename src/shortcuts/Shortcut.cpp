// SPDX-License-Identifier: MIT
#include "shortcuts/Shortcut.h"

#include "platform/KeyCodes.h"
#include "platform/KeyMonitors.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

struct SpecialKey {
    uint32_t keyCode;
    /// As stored shortcuts have it.
    const char *name;
};

constexpr std::array specialKeys{
    SpecialKey{49, QT_TRANSLATE_NOOP("Shortcut", "Space")},
    SpecialKey{36, QT_TRANSLATE_NOOP("Shortcut", "Return")},
    SpecialKey{48, QT_TRANSLATE_NOOP("Shortcut", "Tab")},
    SpecialKey{51, QT_TRANSLATE_NOOP("Shortcut", "Delete")},
    SpecialKey{117, QT_TRANSLATE_NOOP("Shortcut", "⌦")},
    SpecialKey{123, "←"},
    SpecialKey{124, "→"},
    SpecialKey{126, "↑"},
    SpecialKey{125, "↓"},
    SpecialKey{115, QT_TRANSLATE_NOOP("Shortcut", "Home")},
    SpecialKey{119, QT_TRANSLATE_NOOP("Shortcut", "End")},
    SpecialKey{116, QT_TRANSLATE_NOOP("Shortcut", "Page Up")},
    SpecialKey{121, QT_TRANSLATE_NOOP("Shortcut", "Page Down")},
    SpecialKey{76, QT_TRANSLATE_NOOP("Shortcut", "Enter")},
};

QString specialKeyName(uint32_t keyCode)
{
    const auto *const found = std::ranges::find(specialKeys, keyCode, &SpecialKey::keyCode);
    return found == specialKeys.end() ? QString() : QString::fromUtf8(found->name);
}

/// What the person's keyboard says on the key with a stored name.
QString keyLabel(const QString &name)
{
    const auto *const found =
        std::ranges::find_if(specialKeys, [&](const SpecialKey &key) { return name == QString::fromUtf8(key.name); });
    return found == specialKeys.end() ? name : Shortcut::tr(found->name);
}

QString functionKeyName(uint32_t keyCode)
{
    // F1 to F20, in order.
    static constexpr std::array<uint32_t, 20> codes{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                    103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
    const auto *const found = std::ranges::find(codes, keyCode);
    return found == codes.end() ? QString() : u'F' + QString::number(found - codes.begin() + 1);
}

uint32_t hotKeyModifiers(uint32_t eventFlags)
{
    uint32_t modifiers = 0;
    modifiers |= (eventFlags & EventFlag::command) != 0 ? HotKeyModifier::command : 0;
    modifiers |= (eventFlags & EventFlag::option) != 0 ? HotKeyModifier::option : 0;
    modifiers |= (eventFlags & EventFlag::control) != 0 ? HotKeyModifier::control : 0;
    modifiers |= (eventFlags & EventFlag::shift) != 0 ? HotKeyModifier::shift : 0;
    return modifiers;
}

bool isOneCharacter(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return finder.toNextBoundary() == text.size();
}

QString keyEquivalent(const QString &key)
{
    static const std::map<QString, QString> named{
        {u"Space"_s, u" "_s}, {u"Return"_s, u"\r"_s}, {u"Tab"_s, u"\t"_s}, {u"Delete"_s, u"\b"_s}};
    const auto found = named.find(key);
    if (found != named.end()) {
        return found->second;
    }
    return isOneCharacter(key) ? key.toLower() : QString();
}

} // namespace

const std::array<ModifierKeyInfo, 4> &modifierKeys()
{
    static constexpr std::array<ModifierKeyInfo, 4> keys{
        ModifierKeyInfo{ModifierKey::RightOption, u"rightOption", QT_TRANSLATE_NOOP("Shortcut", "Right ⌥ Option"),
                        KeyCode::rightOption, EventFlag::rightOption},
        ModifierKeyInfo{ModifierKey::RightCommand, u"rightCommand", QT_TRANSLATE_NOOP("Shortcut", "Right ⌘ Command"),
                        KeyCode::rightCommand, EventFlag::rightCommand},
        ModifierKeyInfo{ModifierKey::RightControl, u"rightControl", QT_TRANSLATE_NOOP("Shortcut", "Right ⌃ Control"),
                        KeyCode::rightControl, EventFlag::rightControl},
        ModifierKeyInfo{ModifierKey::Fn, u"fn", QT_TRANSLATE_NOOP("Shortcut", "Fn (🌐)"), KeyCode::fn,
                        EventFlag::function},
    };
    return keys;
}

const ModifierKeyInfo &info(ModifierKey key)
{
    return *std::ranges::find(modifierKeys(), key, &ModifierKeyInfo::key);
}

const std::array<TriggerModeInfo, 3> &triggerModes()
{
    static constexpr std::array<TriggerModeInfo, 3> modes{
        TriggerModeInfo{TriggerMode::Both, u"both",
                        QT_TRANSLATE_NOOP("Shortcut", "Hold to talk, or tap for hands-free")},
        TriggerModeInfo{TriggerMode::Hold, u"hold", QT_TRANSLATE_NOOP("Shortcut", "Hold to talk only")},
        TriggerModeInfo{TriggerMode::Toggle, u"toggle", QT_TRANSLATE_NOOP("Shortcut", "Tap to start and stop")},
    };
    return modes;
}

const TriggerModeInfo &info(TriggerMode mode)
{
    return *std::ranges::find(triggerModes(), mode, &TriggerModeInfo::mode);
}

QString ModifierKeyInfo::label() const
{
    return Shortcut::tr(sourceLabel);
}

QString TriggerModeInfo::label() const
{
    return Shortcut::tr(sourceLabel);
}

Shortcut Shortcut::combo(uint32_t keyCode, uint32_t modifiers, const QString &key)
{
    return Shortcut(Combo{keyCode, modifiers, key});
}

Shortcut Shortcut::modifier(ModifierKey key)
{
    return Shortcut(key);
}

std::variant<Shortcut, Shortcut::Rejection> Shortcut::recorded(const KeyEvent &event)
{
    const uint32_t modifiers = hotKeyModifiers(event.modifierFlags);
    if (event.keyCode == KeyCode::escape) {
        return Rejection::EscapeReserved;
    }
    const QString functionKey = functionKeyName(event.keyCode);
    if (functionKey.isEmpty() && (modifiers == 0 || modifiers == HotKeyModifier::shift)) {
        return Rejection::NeedsModifier;
    }
    QString name = specialKeyName(event.keyCode);
    if (name.isEmpty()) {
        name = functionKey.isEmpty() ? event.charactersIgnoringModifiers.value_or(QString()).toUpper() : functionKey;
    }
    if (name.isEmpty()) {
        return Rejection::NeedsModifier;
    }
    return combo(event.keyCode, modifiers, name);
}

QString Shortcut::label() const
{
    if (const ModifierKey *key = asModifier()) {
        return info(*key).label();
    }
    const Combo &combo = *asCombo();
    QString prefix;
    prefix += (combo.modifiers & HotKeyModifier::control) != 0 ? tr("⌃") : QString();
    prefix += (combo.modifiers & HotKeyModifier::option) != 0 ? tr("⌥") : QString();
    prefix += (combo.modifiers & HotKeyModifier::shift) != 0 ? tr("⇧") : QString();
    prefix += (combo.modifiers & HotKeyModifier::command) != 0 ? tr("⌘") : QString();
    const QString key = keyLabel(combo.key);
    //: %1: the modifier keys of a shortcut, %2: its key.
    return prefix.isEmpty() ? key : tr("%1 %2").arg(prefix, key);
}

std::optional<Shortcut::MenuShortcut> Shortcut::menuShortcut() const
{
    const Combo *combo = asCombo();
    const QString key = combo != nullptr ? keyEquivalent(combo->key) : QString();
    if (key.isEmpty()) {
        return std::nullopt;
    }
    return MenuShortcut{key, combo->modifiers & HotKeyModifier::all};
}

QString message(Shortcut::Rejection rejection)
{
    switch (rejection) {
    case Shortcut::Rejection::EscapeReserved:
        return Shortcut::tr("Esc is used to cancel a dictation.");
    case Shortcut::Rejection::NeedsModifier:
        break;
    }
    return Shortcut::tr("Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn't block typing.");
}
