// SPDX-License-Identifier: MIT
#pragma once

#include "store/CheckoutLinks.h"
#include "store/DeviceStore.h"
#include "support/Asio.h"

#include <memory>

/// All that is kept, over one database connection. Belongs to the thread that made it.
struct Store {
    Store(const QString &path, GrantPolicy policy, const WallClock &clock);

    Database database;
    Ledger ledger;
    DeviceStore devices;
    CheckoutLinks checkoutLinks;
};

/// Owns the store and the one thread on which it is used.
class StoreThread {
public:
    /// Returns when the store is open. Throws StoreError.
    StoreThread(const QString &path, GrantPolicy policy, const WallClock &clock);
    /// Finishes what was begun, then closes the store.
    ~StoreThread();

    /// Runs `work(Store &)` on the store's thread, one piece of work after the other.
    template <class Work> net::awaitable<std::invoke_result_t<Work &, Store &>> run(Work work)
    {
        return runOn(m_thread, [this, work = std::move(work)]() mutable { return work(*m_store); });
    }

private:
    std::unique_ptr<Store> m_store;
    net::thread_pool m_thread{1};
};
