// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutRecorder.h"

#include "platform/KeyCodes.h"

#include <utility>

ShortcutRecorder::ShortcutRecorder(KeyMonitors &keyMonitors, Actions actions)
    : m_keyMonitors(keyMonitors), m_actions(std::move(actions))
{
}

void ShortcutRecorder::start()
{
    m_rejection.reset();
    m_isRecording = true;
    m_actions.disarm();
    m_monitor = m_keyMonitors.addLocal([this](const KeyEvent &event) { handle(event); });
    Q_EMIT changed();
}

void ShortcutRecorder::stop()
{
    m_monitor.reset();
    if (std::exchange(m_isRecording, false)) {
        m_actions.arm();
        Q_EMIT changed();
    }
}

void ShortcutRecorder::handle(const KeyEvent &event)
{
    if (event.type != KeyEvent::Type::KeyDown) {
        return;
    }
    if (event.keyCode == KeyCode::escape && (event.modifierFlags & EventFlag::deviceIndependent) == 0) {
        stop();
        return;
    }
    const auto recorded = Shortcut::recorded(event);
    if (const auto *shortcut = std::get_if<Shortcut>(&recorded)) {
        stop();
        m_actions.onRecord(*shortcut);
    } else {
        m_rejection = message(std::get<Shortcut::Rejection>(recorded));
        Q_EMIT changed();
    }
}
