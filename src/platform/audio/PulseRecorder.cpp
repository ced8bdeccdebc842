// SPDX-License-Identifier: MIT
#include "platform/audio/PulseRecorder.h"

#include <mutex>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto watchInterval = 250ms;
constexpr auto firstSoundLimit = 2s; // Bluetooth sources resume slowly
constexpr auto stallLimit = 500ms;

} // namespace

PulseRecorder::PulseRecorder(PulseContext &context, Clock &clock, const QString &path, const AudioSettings &settings)
    : m_context(context), m_clock(clock), m_sampleRate(settings.sampleRate), m_file(path, settings)
{
    QObject::connect(&m_context, &PulseContext::changed, &m_events, [this] { openAwaitedStream(); });
}

PulseRecorder::~PulseRecorder()
{
    PulseRecorder::stop();
}

bool PulseRecorder::record()
{
    if (m_used) {
        return m_recording;
    }
    m_used = true;
    m_context.connectToServer();
    const auto source = m_context.source();
    m_recording = source == PulseContext::Source::Pending || (source == PulseContext::Source::Present && openStream());
    if (m_recording) {
        m_watchdog = m_clock.every(watchInterval, [this] { watch(); });
    } else {
        m_file.remove();
    }
    return m_recording;
}

void PulseRecorder::openAwaitedStream()
{
    const auto source = m_context.source();
    if (!m_recording || m_stream || source == PulseContext::Source::Pending) {
        return;
    }
    if (source == PulseContext::Source::None || !openStream()) {
        endEarly();
    }
}

bool PulseRecorder::openStream()
{
    m_stream = CaptureStream::open(m_context, m_sampleRate,
                                   {.heard = [this](std::span<const float> samples) { hear(samples); },
                                    .ended =
                                        [this] {
                                            QMetaObject::invokeMethod(
                                                &m_events, [this] { endEarly(); }, Qt::QueuedConnection);
                                        }});
    return m_stream != nullptr;
}

void PulseRecorder::hear(std::span<const float> samples)
{
    if (m_failed) {
        return;
    }
    if (!m_file.write(samples)) {
        m_failed = true;
        QMetaObject::invokeMethod(
            &m_events, [this] { endEarly(); }, Qt::QueuedConnection);
        return;
    }
    m_captured += samples.size();
    if (m_metering) {
        m_meter.add(samples);
    }
}

void PulseRecorder::watch()
{
    uint64_t captured = 0;
    {
        const std::scoped_lock guard(m_context);
        captured = m_captured;
    }
    m_stalled = captured == m_seen ? m_stalled + watchInterval : 0ms;
    m_seen = captured;
    if (m_stalled >= (captured == 0 ? firstSoundLimit : stallLimit)) {
        endEarly();
    }
}

void PulseRecorder::release()
{
    m_recording = false;
    m_watchdog.reset();
    m_stream.reset();
}

void PulseRecorder::endEarly()
{
    if (!m_recording) {
        return;
    }
    release();
    if (const auto handler = std::exchange(m_endedHandler, nullptr)) {
        handler(); // may destroy this recorder
    }
}

void PulseRecorder::stop()
{
    m_used = true;
    release();
    m_file.finish();
}

double PulseRecorder::currentTime() const
{
    const std::scoped_lock guard(m_context);
    return double(m_captured) / m_sampleRate;
}

void PulseRecorder::setMeteringEnabled(bool enabled)
{
    const std::scoped_lock guard(m_context);
    m_metering = enabled;
}

void PulseRecorder::updateMeters()
{
    const std::scoped_lock guard(m_context);
    m_power = m_metering ? m_meter.read() : LevelMeter::floor;
}

float PulseRecorder::averagePower(int channel) const
{
    return channel == 0 ? m_power : LevelMeter::floor;
}
