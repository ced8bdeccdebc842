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
    const QString subject = Finding::tr("Sound server");
    if (pulse.connection() == PulseContext::Connection::Ready) {
        const std::scoped_lock guard(pulse);
        return {subject, Level::Good, QString::fromLocal8Bit(pa_context_get_server(pulse.context()))};
    }
    if (pulse.isDenied()) {
        return {subject, Level::Problem, Finding::tr("refuses access"),
                Finding::tr("allow Quillo to record in the sandbox or sound settings")};
    }
    return {subject, Level::Problem, Finding::tr("not running"),
            Finding::tr("start PulseAudio or PipeWire (pipewire-pulse)")};
}

QCoro::Task<Finding> levelFinding(PulseContext &pulse, Clock &clock, QString path, AudioSettings settings)
{
    const QString subject = Finding::tr("Microphone level");
    const auto removing = qScopeGuard([&path] { QFile::remove(path); });
    float power = silence;
    try {
        PulseRecorder recorder(pulse, clock, path, settings);
        recorder.setMeteringEnabled(true);
        if (!recorder.record()) {
            co_return Finding{subject, Level::Problem, Finding::tr("it can't be recorded"),
                              Finding::tr("choose another input device")};
        }
        co_await clock.sleep(listening);
        recorder.updateMeters();
        power = recorder.averagePower(0);
        recorder.stop();
    } catch (const LocalizedError &error) {
        co_return Finding{subject, Level::Problem, error.localizedDescription()};
    }
    if (power <= silence) {
        co_return Finding{subject, Level::Note, Finding::tr("silent"),
                          Finding::tr("unmute the input device in the sound settings")};
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
        findings.append({Finding::tr("Microphone"), Level::Problem, Finding::tr("no input device"),
                         Finding::tr("connect a microphone, or choose one in the sound settings")});
        co_return findings;
    }
    QString source;
    {
        const std::scoped_lock guard(pulse);
        source = QString::fromLocal8Bit(pulse.sourceName());
    }
    findings.append({Finding::tr("Microphone"), Level::Good, source});
    const Finding level = co_await levelFinding(pulse, clock, path, settings);
    findings.append(level);
    co_return findings;
}
