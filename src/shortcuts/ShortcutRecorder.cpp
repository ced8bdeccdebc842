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
    const auto *const shortcut = std::get_if<Shortcut>(&recorded);
    if (shortcut != nullptr && event.canBeHotKey) {
        stop();
        m_actions.onRecord(*shortcut);
        return;
    }
    // A modifier would not help a key that has one, and no name.
    constexpr uint32_t enough = EventFlag::command | EventFlag::option | EventFlag::control;
    const bool isHelped =
        event.keyCode == KeyCode::escape || (event.canBeHotKey && (event.modifierFlags & enough) == 0);
    m_rejection = shortcut == nullptr && isHelped
                      ? message(std::get<Shortcut::Rejection>(recorded))
                      : Shortcut::tr("That can't be a shortcut on this keyboard. Try another one.");
    Q_EMIT changed();
}
