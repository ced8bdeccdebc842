// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the program may do, as the settings show it. Main thread only.
class PermissionProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(bool isMicrophoneGranted READ isMicrophoneGranted NOTIFY permissionsChanged)
    /// Whether the program may watch and post keys.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY permissionsChanged)
    /// Whether recordings may be sent.
    Q_PROPERTY(bool hasConsent READ hasConsent NOTIFY hasConsentChanged)

public:
    virtual bool isMicrophoneGranted() const = 0;
    virtual bool isTrusted() const = 0;
    virtual bool hasConsent() const = 0;

    /// What a person does about a missing permission: answer the desktop's question or change its settings.
    Q_INVOKABLE virtual void fixMicrophone() = 0;
    Q_INVOKABLE virtual void fixAccessibility() = 0;
    /// Shows the agreement as it was given, with the means to withdraw it.
    Q_INVOKABLE virtual void reviewConsent() = 0;

Q_SIGNALS:
    void permissionsChanged();
    void hasConsentChanged();
};
