// SPDX-License-Identifier: MIT
#include "app/model/Shortcuts.h"

#include "platform/Accessibility.h"
#include "platform/KeyCodes.h"
#include "platform/Preferences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Use = Shortcuts::Use;

constexpr uint32_t controlOption = HotKeyModifier::control | HotKeyModifier::option;

const QString triggerModeKey = u"triggerMode"_s;

/// The preference that holds a shortcut, as JSON.
QString keyOf(Use use)
{
    switch (use) {
    case Use::Group:
        return u"groupShortcut"_s;
    case Use::History:
        return u"historyShortcut"_s;
    case Use::Dictation:
        break;
    }
    return u"shortcut.v2"_s;
}

TriggerMode storedTriggerMode(const Preferences &preferences)
{
    const auto stored = preferences.string(triggerModeKey);
    const auto *const found =
        std::ranges::find_if(triggerModes(), [&](const TriggerModeInfo &mode) { return stored == mode.rawValue; });
    return found == triggerModes().end() ? TriggerMode::Both : found->mode;
}

} // namespace

Shortcuts::Shortcuts(HotKeys &hotKeys, KeyMonitors &keyMonitors, Preferences &preferences, Accessibility &accessibility)
    : m_hotKeys(hotKeys),
      m_preferences(preferences),
      m_accessibility(accessibility),
      m_monitor(hotKeys, keyMonitors, [this](ShortcutEvent event) { Q_EMIT dictationEvent(event); }),
      m_entries{Entry{stored(preferences, Use::Dictation), {}, {}}, Entry{stored(preferences, Use::Group), {}, {}},
                Entry{stored(preferences, Use::History), {}, {}}},
      m_triggerMode(storedTriggerMode(preferences))
{
    m_hotKeys.setLostHandler([this] {
        armShortcut();
        armWindowShortcuts();
    });
}

Shortcuts::~Shortcuts()
{
    m_hotKeys.setLostHandler(nullptr);
}

Shortcut Shortcuts::standard(Use use)
{
    switch (use) {
    case Use::Group:
        return Shortcut::combo(KeyCode::g, controlOption, u"G"_s);
    case Use::History:
        return Shortcut::combo(KeyCode::h, controlOption, u"H"_s);
    case Use::Dictation:
        break;
    }
    return Shortcut::combo(KeyCode::space, controlOption, u"Space"_s);
}

Shortcut Shortcuts::stored(const Preferences &preferences, Use use)
{
    const QByteArray json = preferences.data(keyOf(use)).value_or(QByteArray());
    return Shortcut::fromJson(json).value_or(standard(use));
}

void Shortcuts::setShortcut(Use use, const Shortcut &shortcut)
{
    const bool isChanged = at(use).shortcut != shortcut;
    at(use).shortcut = shortcut;
    m_preferences.setData(keyOf(use), shortcut.toJson());
    if (use == Use::Dictation) {
        armShortcut();
        if (shortcut.asModifier() != nullptr && !m_accessibility.isTrusted()) {
            m_accessibility.promptForTrust();
        }
    } else {
        armWindowShortcuts();
    }
    retryRefused();
    if (isChanged) {
        Q_EMIT shortcutsChanged();
    }
}

void Shortcuts::setTriggerMode(TriggerMode mode)
{
    if (m_triggerMode != mode) {
        m_triggerMode = mode;
        m_preferences.setString(triggerModeKey, info(mode).rawValue.toString());
        Q_EMIT shortcutsChanged();
    }
}

void Shortcuts::armShortcut()
{
    if (m_isDisarmed) {
        return;
    }
    const Shortcut &shortcut = at(Use::Dictation).shortcut;
    const bool isArmed = m_monitor.activate(shortcut);
    setError(Use::Dictation,
             isArmed ? std::nullopt
                     : std::optional(
                           tr("%1 is already used by another app. Pick a different shortcut.").arg(shortcut.label())));
}

void Shortcuts::armWindowShortcuts()
{
    if (m_isDisarmed) {
        return;
    }
    at(Use::Group).hotKey.reset();
    at(Use::History).hotKey.reset();
    armWindowShortcut(Use::Group, &Shortcuts::groupPressed);
    armWindowShortcut(Use::History, &Shortcuts::historyPressed);
}

/// What one of ours had before the change may be what another of ours has been waiting for.
void Shortcuts::retryRefused()
{
    if (at(Use::Dictation).error) {
        armShortcut();
    }
    if (at(Use::Group).error || at(Use::History).error) {
        armWindowShortcuts();
    }
}

void Shortcuts::armWindowShortcut(Use use, void (Shortcuts::*pressed)())
{
    Entry &entry = at(use);
    if (const Shortcut::Combo *combo = entry.shortcut.asCombo()) {
        entry.hotKey =
            CarbonHotKey::create(m_hotKeys, combo->keyCode, combo->modifiers, [this, pressed](bool isPressed) {
                if (isPressed) {
                    Q_EMIT(this->*pressed)();
                }
            });
    }
    setError(use,
             entry.hotKey
                 ? std::nullopt
                 : std::optional(tr("%1 is already in use. Pick a different shortcut.").arg(entry.shortcut.label())));
}

void Shortcuts::setError(Use use, const std::optional<QString> &error)
{
    if (at(use).error != error) {
        at(use).error = error;
        Q_EMIT shortcutErrorsChanged();
    }
}

void Shortcuts::disarm()
{
    m_isDisarmed = true;
    m_monitor.deactivate();
    at(Use::Group).hotKey.reset();
    at(Use::History).hotKey.reset();
}

void Shortcuts::rearm()
{
    m_isDisarmed = false;
    armShortcut(); // the first to choose where two of them are the same
    armWindowShortcuts();
}
