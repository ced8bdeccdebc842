// SPDX-License-Identifier: MIT
#include "api/Api.h"

namespace {

/// Of what an endpoint failed with. Without its database, the server can do nothing; that comes back.
Refusal refusalOf(const std::exception &error)
{
    return dynamic_cast<const StoreUnavailable *>(&error) ? Refusal::unavailable() : Refusal::serverError();
}

} // namespace

Api::Api(const ApiOptions &options, StoreThreads &store, Transcriber &transcriber, const WallClock &clock)
    : m_limits(store),
      m_devices(store, m_limits, options.registrationsPerHour),
      m_transcription(options.transcription, store, transcriber, m_limits, m_metrics),
      m_checkout(options.checkout, store, clock),
      m_monitoring(store, transcriber, m_metrics, options.databaseCheck),
      m_router(refusalOf),
      m_monitor(refusalOf)
{
    m_devices.addTo(m_router);
    m_transcription.addTo(m_router);
    m_checkout.addTo(m_router);
    m_monitoring.addHealthTo(m_router);
    m_monitoring.addHealthTo(m_monitor);
    m_monitoring.addMetricsTo(options.isMonitoredApart ? m_monitor : m_router);
}

void Api::reload(const ApiOptions &options)
{
    m_devices.reload(options.registrationsPerHour);
    m_transcription.reload(options.transcription);
    m_checkout.reload(options.checkout.stripe);
}
