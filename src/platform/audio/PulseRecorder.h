// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Microphone.h"
#include "platform/audio/AacFile.h"
#include "platform/audio/CaptureStream.h"
#include "platform/audio/LevelMeter.h"

#include <utility>

/// Records the sound server's default source. Sound is encoded on the connection's thread as it arrives.
class PulseRecorder : public AudioFileRecorder {
public:
    /// Throws what AacFile throws. The context and the clock outlive the recorder.
    PulseRecorder(PulseContext &context, Clock &clock, const QString &path, const AudioSettings &settings);
    ~PulseRecorder() override;

    void setMeteringEnabled(bool enabled) override;

    /// With a connection still being made it waits for it in the background. Refused, it removes its file. A recorder
    /// records once.
    bool record() override;
    void stop() override;
    double currentTime() const override;
    bool isRecording() const override { return m_recording; }
    void updateMeters() override;
    float averagePower(int channel) const override;
    QString path() const override { return m_file.path(); }
    void setEndedHandler(std::function<void()> handler) override { m_endedHandler = std::move(handler); }

private:
    bool openStream();
    void openAwaitedStream();
    void hear(std::span<const float> samples);
    void watch();
    void endEarly();
    void release();

    PulseContext &m_context;
    Clock &m_clock;
    const int m_sampleRate;
    std::function<void()> m_endedHandler;
    bool m_used = false;
    bool m_recording = false;
    float m_power = LevelMeter::floor;

    // Shared with the connection's thread while there is a stream, under the context's lock.
    AacFile m_file;
    LevelMeter m_meter;
    bool m_metering = false;
    bool m_failed = false;
    uint64_t m_captured = 0;

    QObject m_events; // receives what the connection's thread posts
    std::unique_ptr<CaptureStream> m_stream;

    std::unique_ptr<Clock::Timer> m_watchdog;
    uint64_t m_seen = 0;
    Clock::Duration m_stalled{0};
};
