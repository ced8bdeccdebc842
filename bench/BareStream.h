// SPDX-License-Identifier: MIT
#pragma once

#include "bench/Bench.h"

#include <pulse/pulseaudio.h>

#include <QByteArray>

/// What a program without anything else would do: a warm connection to the sound server, and one capture stream at a
/// time with the recorder's format and latency.
class BareStream {
public:
    /// Connected when the constructor returns; throws std::runtime_error when that fails.
    explicit BareStream(const QByteArray &server);
    BareStream(const BareStream &) = delete;
    BareStream &operator=(const BareStream &) = delete;
    ~BareStream();

    /// Opens a stream and closes it again; returns the milliseconds to the first sound. Throws when there is none.
    double start();

private:
    static void onContext(pa_context *context, void *self);
    static void onStream(pa_stream *stream, void *self);
    static void onRead(pa_stream *stream, size_t bytes, void *self);

    pa_threaded_mainloop *m_loop;
    pa_context *m_context;
    Instant m_heard;
};
