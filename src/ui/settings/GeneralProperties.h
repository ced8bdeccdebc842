// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The settings under "General". Main thread only.
class GeneralProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    /// Whether the desktop starts the program at login, as the desktop knows it now.
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin WRITE setLaunchesAtLogin NOTIFY launchesAtLoginChanged)
    /// Whether a recording that couldn't be sent is kept and sent later.
    Q_PROPERTY(bool keepsUnsent READ keepsUnsent WRITE setKeepsUnsent NOTIFY keepsUnsentChanged)

public:
    virtual bool launchesAtLogin() const = 0;
    virtual void setLaunchesAtLogin(bool launches) = 0;
    virtual bool keepsUnsent() const = 0;
    virtual void setKeepsUnsent(bool keeps) = 0;

Q_SIGNALS:
    void keepsUnsentChanged();
    void launchesAtLoginChanged();
};
