// SPDX-License-Identifier: MIT
#include "store/StoreThread.h"

#include <boost/asio/post.hpp>

#include <future>

Store::Store(const QString &path, GrantPolicy policy, const WallClock &clock)
    : database(path),
      ledger(database, clock),
      devices(database, ledger, policy, clock),
      checkoutLinks(database, ledger, clock)
{
}

StoreThread::StoreThread(const QString &path, GrantPolicy policy, const WallClock &clock)
{
    std::packaged_task<std::unique_ptr<Store>()> open([&] { return std::make_unique<Store>(path, policy, clock); });
    auto opened = open.get_future();
    net::post(m_thread, [&open] { open(); });
    m_store = opened.get();
}

StoreThread::~StoreThread()
{
    net::post(m_thread, [this] { m_store.reset(); });
    m_thread.join();
}
