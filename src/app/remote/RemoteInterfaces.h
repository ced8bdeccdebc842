// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

class RemoteControl;

/// org.freedesktop.Application: how a desktop starts, reopens and drives a program.
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationInterface(RemoteControl &control);

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameters, const QVariantMap &platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    RemoteControl &m_control;
};

/// app.quillo.Quillo1, described in packaging/dbus/app.quillo.Quillo1.xml.
class RemoteInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.quillo.Quillo1")

public:
    explicit RemoteInterface(RemoteControl &control);

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus
    QVariantMap GetStatus() const;

Q_SIGNALS:
    void StateChanged(const QString &state);
    // NOLINTEND(readability-identifier-naming)

private:
    RemoteControl &m_control;
};
