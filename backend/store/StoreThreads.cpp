// SPDX-License-Identifier: MIT
#include "store/StoreThreads.h"

#include "support/Log.h"

#include <boost/asio/post.hpp>

#include <future>

namespace {

constexpr int postgreSqlConnections = 4;

} // namespace

Store::Store(const QString &location, GrantPolicy policy, const WallClock &clock)
    : database(location),
      ledger(database, clock),
      devices(database, ledger, policy, clock),
      checkout(database, ledger, clock),
      buckets(database)
{
}

StoreThreads::StoreThreads(const QString &location, GrantPolicy policy, const WallClock &clock)
    : m_isShared(Database::isPostgreSql(location)),
      m_open([=] { return std::make_unique<Store>(location, policy, clock); })
{
    const auto count = m_isShared ? postgreSqlConnections : 1;
    for (int i = 0; i < count; ++i) {
        auto &worker = *m_workers.emplace_back(std::make_unique<Worker>());
        std::packaged_task<std::unique_ptr<Store>()> open(m_open);
        auto opened = open.get_future();
        net::post(worker.thread, [&open] { open(); });
        try {
            worker.store = opened.get();
        } catch (const StoreUnavailable &error) {
            if (!m_isShared) {
                throw;
            }
            if (i == 0) {
                logLine(std::string(error.what()) + "; waiting for it");
            }
        }
    }
}

StoreThreads::~StoreThreads()
{
    for (const auto &worker : m_workers) {
        net::post(worker->thread, [&worker = *worker] { worker.store.reset(); });
        worker->thread.join();
    }
}
