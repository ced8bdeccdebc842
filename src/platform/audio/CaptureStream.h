// SPDX-License-Identifier: MIT
#pragma once

#include "platform/audio/PulseContext.h"

#include <functional>
#include <memory>
#include <span>

/// One stream of mono sound from the default source. Belongs to the main thread; its handlers are called on the
/// connection's thread with the lock held, and never after destruction.
class CaptureStream {
public:
    struct Handlers {
        /// Every 20 ms; samples of -1 to 1, in order, without gaps.
        std::function<void(std::span<const float>)> heard;
        /// Source or server gone, or the source went to sleep.
        std::function<void()> ended;
    };

    /// Asks for the stream and returns at once; null when the context is not ready for one. The context outlives it.
    static std::unique_ptr<CaptureStream> open(PulseContext &context, int sampleRate, Handlers handlers);
    CaptureStream(const CaptureStream &) = delete;
    CaptureStream &operator=(const CaptureStream &) = delete;
    ~CaptureStream();

private:
    CaptureStream(PulseContext &context, pa_stream *stream, Handlers handlers);
    static void onState(pa_stream *stream, void *self);
    static void onRead(pa_stream *stream, size_t bytes, void *self);
    bool connect(const QByteArray &source, int sampleRate);
    void passOn(const void *data, size_t bytes);

    PulseContext &m_context;
    pa_stream *const m_stream;
    const Handlers m_handlers;
};
