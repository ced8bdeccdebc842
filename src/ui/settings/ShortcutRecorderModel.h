// SPDX-License-Identifier: MIT
#pragma once

#include "shortcuts/ShortcutRecorder.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QWindow;

/// A shortcut recorder as its button observes it. Main thread only. While it listens no key reaches any control of the
/// program, and the keystroke that ends the listening reaches none either. It stops listening when its window closes
/// or loses the keyboard focus.
class ShortcutRecorderModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY changed)
    /// Why the last key press was refused, else empty.
    Q_PROPERTY(QString rejection READ rejection NOTIFY changed)

public:
    ShortcutRecorderModel(KeyMonitors &keyMonitors, ShortcutRecorder::Actions actions);

    bool isRecording() const { return m_recorder.isRecording(); }
    QString rejection() const { return m_recorder.rejection().value_or(QString()); }

    /// What a click on the button does: starts listening, or stops without a change.
    Q_INVOKABLE void toggle();
    /// Ends listening without a change.
    Q_INVOKABLE void stop();

Q_SIGNALS:
    void aboutToStart();
    void changed();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void onChanged();
    void onFocusChanged(const QWindow *window);
    void setEatingKeys(bool isEating);

    ShortcutRecorder m_recorder;
    const QWindow *m_window = nullptr;
    bool m_isEatingKeys = false;
};
