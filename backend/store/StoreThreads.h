// SPDX-License-Identifier: MIT
#pragma once

#include "store/Checkout.h"
#include "store/DeviceStore.h"
#include "support/Asio.h"

#include <atomic>
#include <memory>
#include <vector>

/// All that is kept, over one database connection. Belongs to the thread that made it.
struct Store {
    Store(const QString &location, GrantPolicy policy, const WallClock &clock);

    Database database;
    Ledger ledger;
    DeviceStore devices;
    Checkout checkout;
};

/// Owns the stores, each with the one thread on which it is used: one for SQLite, which has one writer at a time
/// anyway, several for PostgreSQL, so that they wait for its answers at the same time.
class StoreThreads {
public:
    /// Returns when the stores are open. Throws StoreError.
    StoreThreads(const QString &location, GrantPolicy policy, const WallClock &clock);
    /// Finishes what was begun, then closes the stores.
    ~StoreThreads();
    StoreThreads(const StoreThreads &) = delete;
    StoreThreads &operator=(const StoreThreads &) = delete;

    /// Runs `work(Store &)` on a store's thread.
    template <class Work> net::awaitable<std::invoke_result_t<Work &, Store &>> run(Work work)
    {
        auto &worker = *m_workers[m_next++ % m_workers.size()];
        return runOn(worker.thread, [&worker, work = std::move(work)]() mutable { return work(*worker.store); });
    }

private:
    struct Worker {
        std::unique_ptr<Store> store;
        net::thread_pool thread{1};
    };

    std::vector<std::unique_ptr<Worker>> m_workers;
    std::atomic<size_t> m_next = 0;
};
