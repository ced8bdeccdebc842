// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SecretStore.h"

/// The desktop's Secret Service (GNOME Keyring, KWallet, KeePassXC) through libsecret, in the default collection.
/// Where there is no such collection yet, the first `add` has the desktop make one, which asks for its password.
class LibsecretStore : public SecretStore {
public:
    QCoro::Task<std::optional<QByteArray>> read(QString service, QString account) override;
    QCoro::Task<bool> add(QString service, QString account, QByteArray secret) override;
    QCoro::Task<bool> remove(QString service, QString account) override;

private:
    bool m_hasAskedForCollection = false;
};
