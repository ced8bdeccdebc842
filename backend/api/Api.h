// SPDX-License-Identifier: MIT
#pragma once

#include "api/CheckoutEndpoints.h"
#include "api/DeviceEndpoints.h"
#include "api/Limits.h"
#include "api/MonitoringEndpoints.h"
#include "api/TranscribeEndpoint.h"

struct ApiOptions {
    TranscribeEndpoint::Options transcription = {};
    CheckoutOptions checkout = {};
    int registrationsPerHour = 60;                 ///< of one address; 0 is no limit
    std::chrono::milliseconds databaseCheck{3000}; ///< after which the database counts as failed
    bool isMonitoredApart = false;                 ///< the metrics are for monitor() alone
};

/// All endpoints, and what they share.
class Api : public RequestHandler {
public:
    /// `store` and `transcriber` must outlive it.
    Api(const ApiOptions &options, StoreThreads &store, Transcriber &transcriber, const WallClock &clock);

    size_t bodyLimit(std::string_view path) const override { return m_router.bodyLimit(path); }
    net::awaitable<std::optional<Reply>> admit(Request &head) override { return m_router.admit(head); }
    net::awaitable<Reply> handle(const Request &request) override { return m_router.handle(request); }

    /// Serves nothing but health and metrics, for a listener of their own, which a busy server still answers.
    RequestHandler &monitor() { return m_monitor; }

    /// Takes over limits, prices of transcripts and Stripe's keys. I/O thread.
    void reload(const ApiOptions &options);

    Metrics &metrics() { return m_metrics; }
    void countConnections(std::function<size_t()> connections)
    {
        m_monitoring.countConnections(std::move(connections));
    }

private:
    Metrics m_metrics;
    Limits m_limits;
    DeviceEndpoints m_devices;
    TranscribeEndpoint m_transcription;
    CheckoutEndpoints m_checkout;
    MonitoringEndpoints m_monitoring;
    Router m_router;
    Router m_monitor;
};
