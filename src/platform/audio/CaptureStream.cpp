// SPDX-License-Identifier: MIT
#include "platform/audio/CaptureStream.h"

#include <mutex>
#include <utility>
#include <vector>

namespace {

constexpr uint32_t fragmentsPerSecond = 50;

void disconnectWhenReady(pa_stream *stream, void * /*unused*/)
{
    if (pa_stream_get_state(stream) == PA_STREAM_READY) {
        pa_stream_disconnect(stream);
    }
}

} // namespace

std::unique_ptr<CaptureStream> CaptureStream::open(PulseContext &context, int sampleRate, Handlers handlers)
{
    const std::scoped_lock guard(context);
    const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, uint32_t(sampleRate), 1};
    pa_stream *stream = pa_stream_new(context.context(), "Dictation", &format, nullptr);
    if (stream == nullptr) {
        return nullptr;
    }
    std::unique_ptr<CaptureStream> capture(new CaptureStream(context, stream, std::move(handlers)));
    return capture->connect(context.sourceName(), sampleRate) ? std::move(capture) : nullptr;
}

CaptureStream::CaptureStream(PulseContext &context, pa_stream *stream, Handlers handlers)
    : m_context(context), m_stream(stream), m_handlers(std::move(handlers))
{
}

CaptureStream::~CaptureStream()
{
    const std::scoped_lock guard(m_context);
    pa_stream_set_read_callback(m_stream, nullptr, nullptr);
    pa_stream_set_state_callback(m_stream, nullptr, nullptr);
    if (pa_stream_get_state(m_stream) == PA_STREAM_CREATING) {
        // Only a stream the server has made can be disconnected; left alone, this one would go on listening.
        pa_stream_set_state_callback(m_stream, disconnectWhenReady, nullptr);
    } else {
        pa_stream_disconnect(m_stream);
    }
    pa_stream_unref(m_stream); // the context keeps it until the server has answered
}

bool CaptureStream::connect(const QByteArray &source, int sampleRate)
{
    constexpr auto unset = uint32_t(-1);
    const auto fragment = uint32_t(sampleRate) / fragmentsPerSecond * uint32_t(sizeof(float));
    const pa_buffer_attr buffer{unset, unset, unset, unset, fragment};
    constexpr auto flags =
        pa_stream_flags_t(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE | PA_STREAM_FAIL_ON_SUSPEND);
    pa_stream_set_state_callback(m_stream, onState, this);
    pa_stream_set_read_callback(m_stream, onRead, this);
    return pa_stream_connect_record(m_stream, source.constData(), &buffer, flags) >= 0;
}

void CaptureStream::onState(pa_stream *stream, void *self)
{
    const pa_stream_state_t state = pa_stream_get_state(stream);
    if (state == PA_STREAM_FAILED || state == PA_STREAM_TERMINATED) {
        static_cast<CaptureStream *>(self)->m_handlers.ended();
    }
}

void CaptureStream::onRead(pa_stream *stream, size_t /*bytes*/, void *self)
{
    const void *data = nullptr;
    size_t bytes = 0;
    while (pa_stream_readable_size(stream) > 0 && pa_stream_peek(stream, &data, &bytes) >= 0 && bytes > 0) {
        static_cast<CaptureStream *>(self)->passOn(data, bytes);
        pa_stream_drop(stream);
    }
}

void CaptureStream::passOn(const void *data, size_t bytes)
{
    const size_t count = bytes / sizeof(float);
    if (data == nullptr) { // a hole: sound the server lost, heard as silence so that time stays right
        m_handlers.heard(std::vector<float>(count));
    } else {
        m_handlers.heard({static_cast<const float *>(data), count});
    }
}
