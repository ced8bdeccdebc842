// SPDX-License-Identifier: MIT
#include "http/Metrics.h"

#include <prometheus/counter.h>
#include <prometheus/gauge.h>
#include <prometheus/histogram.h>
#include <prometheus/registry.h>
#include <prometheus/text_serializer.h>

namespace {

using Seconds = std::chrono::duration<double>;

const prometheus::Histogram::BucketBoundaries &durations()
{
    static const prometheus::Histogram::BucketBoundaries bounds{0.001, 0.005, 0.025, 0.1, 0.5, 1, 2.5, 5, 10, 30, 120};
    return bounds;
}

} // namespace

struct Metrics::Families {
    prometheus::Registry registry;
    prometheus::Family<prometheus::Counter> &requests =
        prometheus::BuildCounter().Name("quillo_http_requests_total").Help("Answered requests").Register(registry);
    prometheus::Family<prometheus::Histogram> &times = prometheus::BuildHistogram()
                                                           .Name("quillo_http_request_seconds")
                                                           .Help("From a request's first byte to its reply's last")
                                                           .Register(registry);
    prometheus::Family<prometheus::Histogram> &engine =
        prometheus::BuildHistogram().Name("quillo_engine_seconds").Help("Running the engine").Register(registry);
    prometheus::Histogram &queue = prometheus::BuildHistogram()
                                       .Name("quillo_queue_seconds")
                                       .Help("Waiting for a turn to be decoded and transcribed")
                                       .Register(registry)
                                       .Add({}, durations());
    prometheus::Histogram &decoding = prometheus::BuildHistogram()
                                          .Name("quillo_decoding_seconds")
                                          .Help("Processor time for decoding a recording")
                                          .Register(registry)
                                          .Add({}, durations());
    prometheus::Counter &audio = prometheus::BuildCounter()
                                     .Name("quillo_audio_seconds_total")
                                     .Help("Started seconds of audio whose transcript was delivered")
                                     .Register(registry)
                                     .Add({});
    prometheus::Counter &tokens = prometheus::BuildCounter()
                                      .Name("quillo_tokens_charged_total")
                                      .Help("Tokens taken for delivered transcripts")
                                      .Register(registry)
                                      .Add({});
    prometheus::Counter &failedCharges = prometheus::BuildCounter()
                                             .Name("quillo_charge_failures_total")
                                             .Help("Attempts to take tokens that the database failed")
                                             .Register(registry)
                                             .Add({});
    prometheus::Gauge &connections =
        prometheus::BuildGauge().Name("quillo_connections").Help("Open connections").Register(registry).Add({});
    prometheus::Gauge &running = prometheus::BuildGauge()
                                     .Name("quillo_transcriptions_running")
                                     .Help("Recordings that the engine has or that wait for it")
                                     .Register(registry)
                                     .Add({});
};

Metrics::Metrics() : m_families(std::make_unique<Families>()) {}
Metrics::~Metrics() = default;

void Metrics::answered(const AccessRecord &record)
{
    // Anyone can think of a method; each would stay as a row of its own.
    const auto method = record.route == "-" || record.status == 405 ? std::string("-") : record.method;
    m_families->requests.Add({{"route", record.route}, {"method", method}, {"status", std::to_string(record.status)}})
        .Increment();
    m_families->times.Add({{"route", record.route}}, durations()).Observe(Seconds(record.duration).count());
}

void Metrics::waited(Duration duration)
{
    m_families->queue.Observe(Seconds(duration).count());
}

void Metrics::decoded(Duration duration)
{
    m_families->decoding.Observe(Seconds(duration).count());
}

void Metrics::engineRan(Duration duration, bool succeeded)
{
    m_families->engine.Add({{"result", succeeded ? "ok" : "error"}}, durations()).Observe(Seconds(duration).count());
}

void Metrics::delivered(qint64 seconds, qint64 tokens)
{
    m_families->audio.Increment(static_cast<double>(seconds));
    m_families->tokens.Increment(static_cast<double>(tokens));
}

void Metrics::chargeFailed()
{
    m_families->failedCharges.Increment();
}

std::string Metrics::text(size_t connections, int placesTaken)
{
    m_families->connections.Set(static_cast<double>(connections));
    m_families->running.Set(placesTaken);
    return prometheus::TextSerializer().Serialize(m_families->registry.Collect());
}
