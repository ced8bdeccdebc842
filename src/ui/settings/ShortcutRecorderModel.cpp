// SPDX-License-Identifier: MIT
#include "ui/settings/ShortcutRecorderModel.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <utility>

namespace {

bool isModifier(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return true;
    default:
        return false;
    }
}

} // namespace

ShortcutRecorderModel::ShortcutRecorderModel(KeyMonitors &keyMonitors, ShortcutRecorder::Actions actions)
    : m_recorder(keyMonitors, std::move(actions))
{
    connect(&m_recorder, &ShortcutRecorder::changed, this, &ShortcutRecorderModel::onChanged);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ShortcutRecorderModel::onFocusChanged);
}

void ShortcutRecorderModel::toggle()
{
    if (isRecording()) {
        stop();
    } else {
        Q_EMIT aboutToStart();
        m_window = QGuiApplication::focusWindow();
        m_recorder.start();
    }
}

void ShortcutRecorderModel::stop()
{
    m_recorder.stop();
    setEatingKeys(false);
}

void ShortcutRecorderModel::onChanged()
{
    if (isRecording()) {
        setEatingKeys(true);
    }
    Q_EMIT changed();
}

void ShortcutRecorderModel::onFocusChanged(const QWindow *window)
{
    if (window != m_window) {
        stop();
    }
}

bool ShortcutRecorderModel::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        // The recorder hears of a key before or after the window does, so the end of its listening does not tell
        // whether the key's own events have passed; its release does. That of a modifier may be an earlier key's.
        if (!isRecording() && !isModifier(*static_cast<QKeyEvent *>(event)) &&
            !static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
            setEatingKeys(false);
        }
        return true;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void ShortcutRecorderModel::setEatingKeys(bool isEating)
{
    if (m_isEatingKeys == isEating) {
        return;
    }
    m_isEatingKeys = isEating;
    if (isEating) {
        qGuiApp->installEventFilter(this);
    } else {
        qGuiApp->removeEventFilter(this);
    }
}
