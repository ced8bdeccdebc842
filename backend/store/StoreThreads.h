// SPDX-License-Identifier: MIT
#pragma once

#include "store/Checkout.h"
#include "store/DeviceStore.h"
#include "store/TokenBuckets.h"
#include "support/Asio.h"

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

/// All that is kept, over one database connection. Belongs to the thread that made it.
struct Store {
    Store(const QString &location, GrantPolicy policy, const WallClock &clock);

    Database database;
    Ledger ledger;
    DeviceStore devices;
    Checkout checkout;
    TokenBuckets buckets;
};

/// Owns the stores, each with the one thread on which it is used: one for SQLite, which has one writer at a time
/// anyway, several for PostgreSQL, so that they wait for its answers at the same time.
class StoreThreads {
public:
    /// Returns when the stores are open. A server that can't be reached is asked again whenever something is to be run.
    /// Throws StoreError.
    StoreThreads(const QString &location, GrantPolicy policy, const WallClock &clock);
    /// Finishes what was begun, then closes the stores.
    ~StoreThreads();
    StoreThreads(const StoreThreads &) = delete;
    StoreThreads &operator=(const StoreThreads &) = delete;

    /// Whether other processes may use the same data.
    bool isShared() const { return m_isShared; }

    /// Runs `work(Store &)` on a store's thread. Throws StoreUnavailable, too.
    template <class Work> net::awaitable<std::invoke_result_t<Work &, Store &>> run(Work work)
    {
        auto &worker = *m_workers[m_next++ % m_workers.size()];
        return runOn(worker.thread, [this, &worker, work = std::move(work)]() mutable {
            if (!worker.store) {
                worker.store = m_open();
            }
            return work(*worker.store);
        });
    }

private:
    struct Worker {
        std::unique_ptr<Store> store;
        net::thread_pool thread{1};
    };

    bool m_isShared;
    std::function<std::unique_ptr<Store>()> m_open;
    std::vector<std::unique_ptr<Worker>> m_workers;
    std::atomic<size_t> m_next = 0;
};
