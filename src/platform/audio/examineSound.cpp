// SPDX-License-Identifier: MIT
#include "platform/audio/examineSound.h"

#include "platform/Clock.h"
#include "platform/LocalizedError.h"
#include "platform/audio/PulseContext.h"
#include "platform/audio/PulseRecorder.h"

#include <QFile>
#include <QScopeGuard>

#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Level = Finding::Level;

constexpr auto step = 50ms;
constexpr int mostSteps = 60; // a server that answers at all has done so within three seconds
constexpr auto listening = 500ms;

// Below this a working microphone is muted: even a quiet room is louder.
constexpr float silence = -90; // dB

Finding serverFinding(const PulseContext &pulse)
{
    const QString subject = u"Sound server"_s;
    if (pulse.connection() == PulseContext::Connection::Ready) {
        const std::scoped_lock guard(pulse);
        return {subject, Level::Good, QString::fromLocal8Bit(pa_context_get_server(pulse.context()))};
    }
    if (pulse.isDenied()) {
        return {subject, Level::Problem, u"refuses access"_s,
                u"allow Quillo to record in the sandbox or sound settings"_s};
    }
    return {subject, Level::Problem, u"not running"_s, u"start PulseAudio or PipeWire (pipewire-pulse)"_s};
}

QCoro::Task<Finding> levelFinding(PulseContext &pulse, Clock &clock, QString path, AudioSettings settings)
{
    const QString subject = u"Microphone level"_s;
    const auto removing = qScopeGuard([&path] { QFile::remove(path); });
    float power = silence;
    try {
        PulseRecorder recorder(pulse, clock, path, settings);
        recorder.setMeteringEnabled(true);
        if (!recorder.record()) {
            co_return Finding{subject, Level::Problem, u"it can't be recorded"_s, u"choose another input device"_s};
        }
        co_await clock.sleep(listening);
        recorder.updateMeters();
        power = recorder.averagePower(0);
        recorder.stop();
    } catch (const LocalizedError &error) {
        co_return Finding{subject, Level::Problem, error.localizedDescription()};
    }
    if (power <= silence) {
        co_return Finding{subject, Level::Note, u"silent"_s, u"unmute the input device in the sound settings"_s};
    }
    co_return Finding{subject, Level::Good, u"%1 dB"_s.arg(power, 0, 'f', 0)};
}

} // namespace

QCoro::Task<QList<Finding>> examineSound(Clock &clock, QString path, AudioSettings settings)
{
    PulseContext pulse{QByteArray()};
    pulse.connectToServer();
    for (int steps = 0; steps < mostSteps && pulse.source() == PulseContext::Source::Pending; ++steps) {
        co_await clock.sleep(step);
    }
    QList<Finding> findings{serverFinding(pulse)};
    if (findings.first().level != Level::Good) {
        co_return findings;
    }
    if (pulse.source() != PulseContext::Source::Present) {
        findings.append({u"Microphone"_s, Level::Problem, u"no input device"_s,
                         u"connect a microphone, or choose one in the sound settings"_s});
        co_return findings;
    }
    QString source;
    {
        const std::scoped_lock guard(pulse);
        source = QString::fromLocal8Bit(pulse.sourceName());
    }
    findings.append({u"Microphone"_s, Level::Good, source});
    const Finding level = co_await levelFinding(pulse, clock, path, settings);
    findings.append(level);
    co_return findings;
}
