// SPDX-License-Identifier: MIT
#pragma once

#include "api/CheckoutEndpoints.h"
#include "api/DeviceEndpoints.h"
#include "api/TranscribeEndpoint.h"

struct ApiOptions {
    TranscribeEndpoint::Options transcription = {};
    CheckoutOptions checkout = {};
    int registrationsPerHour = 60;                 ///< of one address; 0 is no limit
    std::chrono::milliseconds databaseCheck{3000}; ///< after which the database counts as failed
};

/// All endpoints, and what they share.
class Api : public RequestHandler {
public:
    /// `store` and `transcriber` must outlive it.
    Api(const ApiOptions &options, StoreThreads &store, Transcriber &transcriber, const WallClock &clock);

    size_t bodyLimit(std::string_view path) const override { return m_router.bodyLimit(path); }
    net::awaitable<std::optional<Reply>> admit(const Request &head) override { return m_router.admit(head); }
    net::awaitable<Reply> handle(const Request &request) override { return m_router.handle(request); }

    Metrics &metrics() { return m_metrics; }

    /// Tells the metrics how many connections there are.
    void countConnections(std::function<size_t()> connections) { m_connections = std::move(connections); }

private:
    net::awaitable<bool> databaseAnswers();
    net::awaitable<Reply> health(const Request &request);
    net::awaitable<Reply> showMetrics(const Request &request);

    std::chrono::milliseconds m_databaseCheck;
    StoreThreads &m_store;
    Transcriber &m_transcriber;
    Metrics m_metrics;
    std::function<size_t()> m_connections = [] { return 0; };
    DeviceEndpoints m_devices;
    TranscribeEndpoint m_transcription;
    CheckoutEndpoints m_checkout;
    Router m_router;
};
