// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutMonitor.h"

#include <utility>

ShortcutMonitor::ShortcutMonitor(HotKeys &hotKeys, KeyMonitors &keyMonitors, Callback onEvent)
    : m_hotKeys(hotKeys), m_keyMonitors(keyMonitors), m_onEvent(std::move(onEvent))
{
}

bool ShortcutMonitor::activate(const Shortcut &shortcut)
{
    deactivate();
    m_shortcut = shortcut;
    if (const Shortcut::Combo *combo = shortcut.asCombo()) {
        m_hotKey = CarbonHotKey::create(m_hotKeys, combo->keyCode, combo->modifiers, [this](bool pressed) {
            m_onEvent(pressed ? ShortcutEvent::Pressed : ShortcutEvent::Released);
        });
        return m_hotKey != nullptr;
    }
    const auto handler = [this](const KeyEvent &event) { handle(event); };
    for (auto &monitor : {&KeyMonitors::addGlobal, &KeyMonitors::addLocal}) {
        if (auto added = (m_keyMonitors.*monitor)(handler)) {
            m_monitors.push_back(std::move(added));
        }
    }
    return true;
}

void ShortcutMonitor::deactivate()
{
    m_hotKey.reset();
    m_monitors.clear();
    m_modifierDown = false;
}

void ShortcutMonitor::handle(const KeyEvent &event)
{
    const ModifierKey *key = m_shortcut ? m_shortcut->asModifier() : nullptr;
    if (key == nullptr) {
        return;
    }
    const ModifierKeyInfo &watched = info(*key);
    if (event.type != KeyEvent::Type::KeyDown && event.keyCode == watched.keyCode) {
        const bool down = (event.modifierFlags & watched.flag) != 0;
        if (down != m_modifierDown) {
            m_modifierDown = down;
            m_onEvent(down ? ShortcutEvent::Pressed : ShortcutEvent::Released);
        }
    } else if (m_modifierDown) {
        // Any other key makes it an ordinary modifier press, its left-hand twin included.
        m_modifierDown = false;
        m_onEvent(ShortcutEvent::Interrupted);
    }
}
