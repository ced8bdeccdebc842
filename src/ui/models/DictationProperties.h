// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What the dictation is doing, as views observe it. Main thread only.
class DictationProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(Activity activity READ activity NOTIFY stateChanged)
    /// What the shortcut does next, or what is going on.
    Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)

public:
    enum class Activity { Idle, Recording, Transcribing };
    Q_ENUM(Activity)

    virtual Activity activity() const = 0;
    virtual QString statusText() const = 0;

Q_SIGNALS:
    void stateChanged();
    void statusTextChanged();
};
