// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyMonitors.h"
#include "shortcuts/CarbonHotKey.h"
#include "shortcuts/Shortcut.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Watches for one shortcut of either kind and reports what happens to it. Main thread only. Each event is reported
/// before the next key is looked at; the callback may activate or deactivate the monitor.
class ShortcutMonitor {
public:
    using Callback = std::function<void(ShortcutEvent)>;

    ShortcutMonitor(HotKeys &hotKeys, KeyMonitors &keyMonitors, Callback onEvent);

    /// Replaces whatever was armed. False when a combination is taken; a single modifier key is always accepted,
    /// though no event may arrive without the right to watch keys.
    bool activate(const Shortcut &shortcut);

    /// Disarms; nothing is reported until the next `activate`.
    void deactivate();

private:
    void handle(const KeyEvent &event);

    HotKeys &m_hotKeys;
    KeyMonitors &m_keyMonitors;
    Callback m_onEvent;
    std::optional<Shortcut> m_shortcut;
    std::unique_ptr<CarbonHotKey> m_hotKey;
    std::vector<std::unique_ptr<KeyMonitor>> m_monitors;
    bool m_modifierDown = false;
};
