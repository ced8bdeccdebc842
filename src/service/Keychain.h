// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SecretStore.h"

#include <QCoroTask>
#include <QString>

#include <optional>

/// The program's own items in the secret store, by account name. Other failures are silent. Main thread only.
class Keychain {
public:
    explicit Keychain(SecretStore &store) : m_store(store) {}

    /// Nothing for an absent item, an unreadable store and bytes that are no UTF-8.
    QCoro::Task<std::optional<QString>> read(QString account);

    /// Replaces the item; false when the store refused.
    QCoro::Task<bool> write(QString account, QString value);

    QCoro::Task<void> remove(QString account);

private:
    SecretStore &m_store;
};
