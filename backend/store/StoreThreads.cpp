// SPDX-License-Identifier: MIT
#include "store/StoreThreads.h"

#include <boost/asio/post.hpp>

#include <future>

namespace {

constexpr int postgreSqlConnections = 4;

} // namespace

Store::Store(const QString &location, GrantPolicy policy, const WallClock &clock)
    : database(location),
      ledger(database, clock),
      devices(database, ledger, policy, clock),
      checkout(database, ledger, clock)
{
}

StoreThreads::StoreThreads(const QString &location, GrantPolicy policy, const WallClock &clock)
{
    const auto count = Database::isPostgreSql(location) ? postgreSqlConnections : 1;
    for (int i = 0; i < count; ++i) {
        auto &worker = *m_workers.emplace_back(std::make_unique<Worker>());
        std::packaged_task<std::unique_ptr<Store>()> open(
            [&] { return std::make_unique<Store>(location, policy, clock); });
        auto opened = open.get_future();
        net::post(worker.thread, [&open] { open(); });
        worker.store = opened.get();
    }
}

StoreThreads::~StoreThreads()
{
    for (const auto &worker : m_workers) {
        net::post(worker->thread, [&worker = *worker] { worker.store.reset(); });
        worker->thread.join();
    }
}
