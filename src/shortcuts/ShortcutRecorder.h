// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyMonitors.h"
#include "shortcuts/Shortcut.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

/// Listens for the key combination that is to be a shortcut. Main thread only. While it listens, the program's own
/// shortcuts are off, so that pressing one records it.
class ShortcutRecorder : public QObject {
    Q_OBJECT

public:
    /// What the recorder does to the rest of the program.
    struct Actions {
        /// Switches all shortcuts of the program off, and on again with their current values.
        std::function<void()> disarm;
        std::function<void()> arm;
        /// Gets the combination; the shortcuts are on again by then.
        std::function<void(const Shortcut &)> onRecord;
    };

    ShortcutRecorder(KeyMonitors &keyMonitors, Actions actions);

    bool isRecording() const { return m_isRecording; }
    /// Why the last key press was refused; nothing since the start otherwise.
    const std::optional<QString> &rejection() const { return m_rejection; }

    void start();
    /// Ends listening without a change. Does nothing when it does not listen.
    void stop();

Q_SIGNALS:
    void changed();

private:
    void handle(const KeyEvent &event);

    KeyMonitors &m_keyMonitors;
    Actions m_actions;
    bool m_isRecording = false;
    std::optional<QString> m_rejection;
    std::unique_ptr<KeyMonitor> m_monitor;
};
