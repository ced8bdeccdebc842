// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>

#include <optional>

/// A secure per-user store of small secrets, one item per service and account. Operations suspend, never block, and
/// but for `unlock` never ask the user for anything: what is locked can neither be read nor changed. Called and resumed
/// on the main thread. Failures are results, nothing is thrown.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Nothing when there is no such item or the store can't be read.
    virtual QCoro::Task<std::optional<QByteArray>> read(QString service, QString account) = 0;

    /// Adds the item; false when the store refused. An existing item is to be removed first.
    virtual QCoro::Task<bool> add(QString service, QString account, QByteArray secret) = 0;

    /// Has the desktop ask the user to unlock the store, or to make one where there is none. Only for a person's own
    /// click: a dialog in the middle of anything else would take the keystrokes meant for it. True when it can be used.
    virtual QCoro::Task<bool> unlock() = 0;

    /// Removes the item; a missing one is no failure.
    virtual QCoro::Task<bool> remove(QString service, QString account) = 0;
};
