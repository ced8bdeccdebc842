// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

class AppModel;

/// The controller as the views see it: texts, numbers and plain calls. It keeps nothing of its own. Main thread only.
class ViewModel : public QObject {
    Q_OBJECT
    /// "idle", "recording" or "transcribing".
    Q_PROPERTY(QString state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)
    /// A number; undefined before the first answer of the backend.
    Q_PROPERTY(QVariant balance READ balance NOTIFY balanceChanged)
    Q_PROPERTY(bool isUnmetered READ isUnmetered NOTIFY balanceChanged)
    Q_PROPERTY(QString shortcutLabel READ shortcutLabel NOTIFY shortcutsChanged)
    Q_PROPERTY(QString groupShortcutLabel READ groupShortcutLabel NOTIFY shortcutsChanged)
    Q_PROPERTY(QString historyShortcutLabel READ historyShortcutLabel NOTIFY shortcutsChanged)
    /// Why a shortcut is not armed; empty when it is.
    Q_PROPERTY(QString shortcutError READ shortcutError NOTIFY shortcutErrorsChanged)
    Q_PROPERTY(QString groupShortcutError READ groupShortcutError NOTIFY shortcutErrorsChanged)
    Q_PROPERTY(QString historyShortcutError READ historyShortcutError NOTIFY shortcutErrorsChanged)
    /// The single key's place in `singleKeyLabels`; -1 while the shortcut is a combination. Writing -1 makes it the
    /// default combination.
    Q_PROPERTY(int singleKey READ singleKey WRITE setSingleKey NOTIFY shortcutsChanged)
    Q_PROPERTY(QStringList singleKeyLabels READ singleKeyLabels CONSTANT)
    /// The single key is fn.
    Q_PROPERTY(bool isFnKey READ isFnKey NOTIFY shortcutsChanged)
    /// Place in `triggerModeLabels`.
    Q_PROPERTY(int triggerMode READ triggerMode WRITE setTriggerMode NOTIFY shortcutsChanged)
    Q_PROPERTY(QStringList triggerModeLabels READ triggerModeLabels CONSTANT)
    Q_PROPERTY(bool isMicrophoneGranted READ isMicrophoneGranted NOTIFY permissionsChanged)
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY permissionsChanged)
    Q_PROPERTY(bool hasConsent READ hasConsent NOTIFY hasConsentChanged)
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin WRITE setLaunchesAtLogin NOTIFY launchesAtLoginChanged)

public:
    /// `model` outlives the object.
    explicit ViewModel(AppModel &model);

    QString state() const;
    QString statusText() const;
    QVariant balance() const;
    bool isUnmetered() const;
    QString shortcutLabel() const;
    QString groupShortcutLabel() const;
    QString historyShortcutLabel() const;
    QString shortcutError() const;
    QString groupShortcutError() const;
    QString historyShortcutError() const;
    int singleKey() const;
    void setSingleKey(int place);
    static QStringList singleKeyLabels();
    bool isFnKey() const;
    int triggerMode() const;
    void setTriggerMode(int place);
    static QStringList triggerModeLabels();
    bool isMicrophoneGranted() const;
    bool isTrusted() const;
    bool hasConsent() const;
    bool launchesAtLogin() const;
    void setLaunchesAtLogin(bool launches);

    Q_INVOKABLE void fixMicrophone();
    Q_INVOKABLE void fixAccessibility();
    Q_INVOKABLE void reviewConsent();
    Q_INVOKABLE void refreshBalance();
    Q_INVOKABLE void editGroups();

Q_SIGNALS:
    void stateChanged();
    void statusTextChanged();
    void balanceChanged();
    void shortcutsChanged();
    void shortcutErrorsChanged();
    void permissionsChanged();
    void hasConsentChanged();
    void launchesAtLoginChanged();

private:
    AppModel &m_model;
};
