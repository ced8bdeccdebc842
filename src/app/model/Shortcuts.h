// SPDX-License-Identifier: MIT
#pragma once

#include "shortcuts/CarbonHotKey.h"
#include "shortcuts/ShortcutMonitor.h"
#include "ui/models/ShortcutProperties.h"

#include <array>
#include <memory>

class Accessibility;
class HotKeys;
class KeyMonitors;
class Preferences;

/// The shortcuts for dictating, the next group and the history: their stored values, and their registration with the
/// desktop. Main thread only. While they are disarmed, arming one waits until they are rearmed.
class Shortcuts : public ShortcutProperties {
    Q_OBJECT

public:
    Shortcuts(HotKeys &hotKeys, KeyMonitors &keyMonitors, Preferences &preferences, Accessibility &accessibility);
    Shortcuts(const Shortcuts &) = delete;
    Shortcuts &operator=(const Shortcuts &) = delete;
    ~Shortcuts() override;

    /// What holds while nothing readable is stored.
    static Shortcut standard(Use use);
    /// What the preferences have.
    static Shortcut stored(const Preferences &preferences, Use use);

    /// Register the shortcuts with their current values and find out what is wrong with them.
    void armShortcut();
    void armWindowShortcuts();

    const Shortcut &shortcut(Use use) const override { return at(use).shortcut; }
    void setShortcut(Use use, const Shortcut &shortcut) override;
    TriggerMode triggerMode() const override { return m_triggerMode; }
    void setTriggerMode(TriggerMode mode) override;
    const std::optional<QString> &error(Use use) const override { return at(use).error; }
    void useStandard(Use use) override { setShortcut(use, standard(use)); }
    void disarm() override;
    void rearm() override;

Q_SIGNALS:
    void dictationEvent(ShortcutEvent event);
    void groupPressed();
    void historyPressed();

private:
    struct Entry {
        Shortcut shortcut;
        std::optional<QString> error;
        std::unique_ptr<CarbonHotKey> hotKey; ///< none for dictating, which the monitor registers
    };

    Entry &at(Use use) { return m_entries[static_cast<size_t>(use)]; }
    const Entry &at(Use use) const { return m_entries[static_cast<size_t>(use)]; }
    void retryRefused();
    void armWindowShortcut(Use use, void (Shortcuts::*pressed)());
    void setError(Use use, const std::optional<QString> &error);

    HotKeys &m_hotKeys;
    Preferences &m_preferences;
    Accessibility &m_accessibility;
    ShortcutMonitor m_monitor;
    std::array<Entry, 3> m_entries; ///< indexed by Use
    TriggerMode m_triggerMode;
    bool m_isDisarmed = false;
};
