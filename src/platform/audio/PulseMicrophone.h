// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Microphone.h"

class Clock;
class PulseContext;
class Reconnection;

/// The default source of the desktop's sound server: PulseAudio, or PipeWire through its PulseAudio protocol. It
/// connects at construction and stays connected, so that a recording starts at once; between recordings the server has
/// no stream of ours. It never starts a server.
class PulseMicrophone : public Microphone {
public:
    /// Connects in the background. `server` is an address as in $PULSE_SERVER; empty for the desktop's own. The clock
    /// outlives the microphone, the microphone its recorders. Throws std::runtime_error when no thread can be made.
    explicit PulseMicrophone(Clock &clock, const QString &server = {});
    ~PulseMicrophone() override;

    /// Denied when the server refuses this user, as it does to a program whose sandbox or whose user said no;
    /// Authorized otherwise, also without a server or a microphone, which may come.
    Authorization authorizationStatus() const override;

    /// The desktop has no question to ask: answers with the status as it is.
    QCoro::Task<bool> requestAccess() override;

    /// Throws also when the server is known to have no microphone.
    std::unique_ptr<AudioFileRecorder> makeRecorder(const QString &path, const AudioSettings &settings) override;

private:
    Clock &m_clock;
    std::unique_ptr<PulseContext> m_context;
    std::unique_ptr<Reconnection> m_reconnection;
};
