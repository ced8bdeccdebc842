// SPDX-License-Identifier: MIT
#include "api/MonitoringEndpoints.h"

#include "support/Log.h"

#include <QJsonObject>
#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void read(Store &store)
{
    store.database.first(u"SELECT version FROM schema_version"_s);
}

/// Needs room on the disk. SQLite would not write what it has already, and PostgreSQL logs no change to the buckets.
void write(Store &store)
{
    Transaction transaction(store.database, Transaction::Kind::Volatile);
    store.database.change(u"UPDATE schema_version SET version = version"_s);
    store.database.change(u"INSERT INTO token_buckets (owner, full_at) VALUES ('trial', 0)"
                          " ON CONFLICT (owner) DO UPDATE SET full_at = token_buckets.full_at + 1"_s);
    transaction.commit();
}

} // namespace

MonitoringEndpoints::MonitoringEndpoints(StoreThreads &store, Transcriber &transcriber, Metrics &metrics,
                                         std::chrono::milliseconds databaseTime)
    : m_store(store), m_transcriber(transcriber), m_metrics(metrics), m_databaseTime(databaseTime)
{
}

void MonitoringEndpoints::addHealthTo(Router &router)
{
    router.add("GET", "/healthz", [this](const Request &) { return health(read); });
    router.add("GET", "/readyz", [this](const Request &) { return health(write); });
}

void MonitoringEndpoints::addMetricsTo(Router &router)
{
    router.add("GET", "/metrics", [this](const Request &) { return showMetrics(); });
}

/// Does not wait for longer than the limit, though the trial itself may.
net::awaitable<bool> MonitoringEndpoints::succeeds(Trial trial)
{
    struct Attempt {
        net::steady_timer end;
        bool succeeded = false;
    };
    const auto executor = co_await net::this_coro::executor;
    const auto attempt = std::make_shared<Attempt>(Attempt{{executor, m_databaseTime}});
    const auto run = [](StoreThreads &stores, Trial tried, std::shared_ptr<Attempt> made) -> net::awaitable<void> {
        try {
            made->succeeded = co_await stores.run([tried](Store &store) {
                tried(store);
                return true;
            });
        } catch (const StoreError &error) {
            logLine(error.what());
        }
        made->end.cancel();
    };
    net::co_spawn(executor, run(m_store, trial, attempt), net::detached);
    boost::system::error_code cancelled;
    co_await attempt->end.async_wait(net::redirect_error(net::use_awaitable, cancelled));
    co_return attempt->succeeded;
}

net::awaitable<Reply> MonitoringEndpoints::health(Trial trial)
{
    const auto database = co_await succeeds(trial) ? u"ok"_s : u"failed"_s;
    const auto state = m_transcriber.state();
    const auto engine = state == Transcriber::State::Ready     ? u"ok"_s
                        : state == Transcriber::State::Loading ? u"loading"_s
                                                               : u"failed"_s;
    const auto isHealthy = database == u"ok"_s && state == Transcriber::State::Ready;
    co_return jsonReply(
        {{u"status"_s, isHealthy ? u"ok"_s : u"unavailable"_s}, {u"database"_s, database}, {u"engine"_s, engine}},
        isHealthy ? 200 : 503);
}

net::awaitable<Reply> MonitoringEndpoints::showMetrics()
{
    Reply reply;
    reply.contentType = "text/plain; version=0.0.4; charset=utf-8";
    reply.body = m_metrics.text(m_connections(), m_transcriber.placesTaken());
    co_return reply;
}
