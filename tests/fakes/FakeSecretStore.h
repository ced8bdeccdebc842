// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SecretStore.h"

#include <QCoroFuture>
#include <QMap>
#include <QPair>
#include <QPromise>

#include <memory>

/// Secrets in memory; out of reach while the store is absent or locked.
class FakeSecretStore : public SecretStore {
public:
    QCoro::Task<std::optional<QByteArray>> read(QString service, QString account) override
    {
        if (answer) {
            const QFuture<void> answered = answer->future();
            co_await answered;
        }
        const auto found = items.constFind({service, account});
        co_return !isAvailable || found == items.constEnd() ? std::nullopt : std::optional(*found);
    }

    QCoro::Task<bool> add(QString service, QString account, QByteArray secret) override
    {
        if (isAvailable) {
            items.insert({service, account}, secret);
        }
        co_return isAvailable;
    }

    QCoro::Task<bool> remove(QString service, QString account) override
    {
        if (isAvailable) {
            items.remove({service, account});
        }
        co_return isAvailable;
    }

    QCoro::Task<bool> unlock() override
    {
        isAvailable = isAvailable || isUnlockedByUser;
        co_return isAvailable;
    }

    QMap<QPair<QString, QString>, QByteArray> items;
    bool isAvailable = true;
    bool isUnlockedByUser = false;          ///< when asked
    std::shared_ptr<QPromise<void>> answer; ///< reading waits for it, where there is one
};
