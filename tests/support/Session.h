// SPDX-License-Identifier: MIT
#pragma once

#include "support/ChildProcess.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <memory>

/// A user's session of the test's own: folders, a D-Bus session bus and, where wanted, an unlocked keyring.
class Session {
public:
    enum class Keyring { Unlocked, None };

    /// Everything runs when the constructor returns; throws std::runtime_error when something does not start.
    explicit Session(Keyring keyring = Keyring::Unlocked);

    /// `base` with the session's folders and bus.
    QProcessEnvironment environment(const QProcessEnvironment &base = QProcessEnvironment::systemEnvironment()) const;

    /// Makes it the session of this process, for libraries that read the environment.
    void use() const;

    /// Locks the keyring, as a log-in without a password leaves it.
    void lockKeyring() const;
    /// As the next log-in with the password does.
    void unlockKeyring();

    QString busAddress() const { return m_busAddress; }
    QString runtimeFolder() const { return m_folder.filePath(QStringLiteral("run")); }
    QString configFolder() const { return m_folder.filePath(QStringLiteral("config")); }
    QString dataFolder() const { return m_folder.filePath(QStringLiteral("data")); }
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    void openKeyring();
    bool ownsName() const;
    bool holdsSecrets() const;

    QTemporaryDir m_folder;
    std::unique_ptr<ChildProcess> m_bus;
    QString m_busAddress;
    std::unique_ptr<ChildProcess> m_keyring;
};
