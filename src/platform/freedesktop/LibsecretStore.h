// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SecretStore.h"

#include <QThreadPool>

#include <memory>

using GCancellable = struct _GCancellable;

/// The desktop's Secret Service (GNOME Keyring, KWallet, KeePassXC) through libsecret, in the default collection.
/// The calls block in threads of their own: libsecret's answers to asynchronous ones need the event loop of GLib, which
/// Qt may have been built or told to do without. Destruction ends what is still waited for, a password's prompt too.
class LibsecretStore : public SecretStore {
public:
    LibsecretStore();
    ~LibsecretStore() override;

    QCoro::Task<std::optional<QByteArray>> read(QString service, QString account) override;
    QCoro::Task<bool> add(QString service, QString account, QByteArray secret) override;
    QCoro::Task<bool> unlock() override;
    QCoro::Task<bool> remove(QString service, QString account) override;

private:
    struct Unref {
        void operator()(GCancellable *cancellable) const;
    };

    std::unique_ptr<GCancellable, Unref> m_end;
    QThreadPool m_threads;
};
