// SPDX-License-Identifier: MIT
#include "bench/BareStream.h"

#include <stdexcept>

BareStream::BareStream(const QByteArray &server)
    : m_loop(pa_threaded_mainloop_new()), m_context(pa_context_new(pa_threaded_mainloop_get_api(m_loop), "bench"))
{
    pa_context_set_state_callback(m_context, onContext, this);
    pa_context_connect(m_context, server.constData(), PA_CONTEXT_NOAUTOSPAWN, nullptr);
    pa_threaded_mainloop_start(m_loop);
    pa_threaded_mainloop_lock(m_loop);
    while (pa_context_get_state(m_context) != PA_CONTEXT_READY && PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context))) {
        pa_threaded_mainloop_wait(m_loop);
    }
    const bool isReady = pa_context_get_state(m_context) == PA_CONTEXT_READY;
    pa_threaded_mainloop_unlock(m_loop);
    if (!isReady) {
        throw std::runtime_error("the bare connection failed");
    }
}

BareStream::~BareStream()
{
    pa_threaded_mainloop_lock(m_loop);
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
    pa_threaded_mainloop_unlock(m_loop);
    pa_threaded_mainloop_stop(m_loop);
    pa_threaded_mainloop_free(m_loop);
}

double BareStream::start()
{
    constexpr auto unset = uint32_t(-1);
    constexpr uint32_t rate = 44100;
    const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, rate, 1};
    const pa_buffer_attr buffer{unset, unset, unset, unset, rate / 50 * uint32_t(sizeof(float))};
    constexpr auto flags =
        pa_stream_flags_t(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE | PA_STREAM_FAIL_ON_SUSPEND);
    m_heard = {};
    const Instant from = std::chrono::steady_clock::now();
    pa_threaded_mainloop_lock(m_loop);
    pa_stream *stream = pa_stream_new(m_context, "bench", &format, nullptr);
    pa_stream_set_state_callback(stream, onStream, this);
    pa_stream_set_read_callback(stream, onRead, this);
    pa_stream_connect_record(stream, nullptr, &buffer, flags);
    while (m_heard == Instant() && PA_STREAM_IS_GOOD(pa_stream_get_state(stream))) {
        pa_threaded_mainloop_wait(m_loop);
    }
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
    pa_threaded_mainloop_unlock(m_loop);
    if (m_heard == Instant()) {
        throw std::runtime_error("the bare stream heard nothing");
    }
    return milliseconds(from, m_heard);
}

void BareStream::onContext(pa_context * /*context*/, void *self)
{
    pa_threaded_mainloop_signal(static_cast<BareStream *>(self)->m_loop, 0);
}

void BareStream::onStream(pa_stream * /*stream*/, void *self)
{
    pa_threaded_mainloop_signal(static_cast<BareStream *>(self)->m_loop, 0);
}

void BareStream::onRead(pa_stream * /*stream*/, size_t /*bytes*/, void *self)
{
    auto *bare = static_cast<BareStream *>(self);
    if (bare->m_heard == Instant()) {
        bare->m_heard = std::chrono::steady_clock::now();
        pa_threaded_mainloop_signal(bare->m_loop, 0);
    }
}
