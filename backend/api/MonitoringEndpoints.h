// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Transcriber.h"
#include "http/Metrics.h"
#include "http/Router.h"
#include "store/StoreThreads.h"

/// What tells whether the server works, and how much.
class MonitoringEndpoints {
public:
    /// All must outlive it. `databaseTime` is how long the database may take before it counts as failed.
    MonitoringEndpoints(StoreThreads &store, Transcriber &transcriber, Metrics &metrics,
                        std::chrono::milliseconds databaseTime);

    void addHealthTo(Router &router);
    void addMetricsTo(Router &router);

    /// Tells the metrics how many connections there are.
    void countConnections(std::function<size_t()> connections) { m_connections = std::move(connections); }

private:
    /// Something to do with the database that shows whether it works. Throws StoreError.
    using Trial = void (*)(Store &store);

    net::awaitable<bool> succeeds(Trial trial);
    net::awaitable<Reply> health(Trial trial);
    net::awaitable<Reply> showMetrics();

    StoreThreads &m_store;
    Transcriber &m_transcriber;
    Metrics &m_metrics;
    std::chrono::milliseconds m_databaseTime;
    std::function<size_t()> m_connections = [] { return 0; };
};
