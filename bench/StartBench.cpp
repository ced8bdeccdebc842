// SPDX-License-Identifier: MIT
#include "audio/AudioRecorder.h"
#include "bench/BareStream.h"
#include "bench/Bench.h"
#include "platform/audio/PulseMicrophone.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "support/SoundServer.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <stdexcept>
#include <thread>

// From start() to the first captured sample, against a bare stream and against a recording program.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int rounds = 15;

/// Fine enough for the figures and coarse enough not to keep the lock from the sound thread.
constexpr auto look = 50us;

double startRecorder(AudioRecorder &recorder)
{
    const Instant from = std::chrono::steady_clock::now();
    recorder.start([] {});
    while (recorder.recorder()->currentTime() <= 0) {
        std::this_thread::sleep_for(look);
        if (std::chrono::steady_clock::now() - from > 5s) {
            throw std::runtime_error("the recorder heard nothing");
        }
    }
    const double taken = milliseconds(from, std::chrono::steady_clock::now());
    recorder.cancel();
    return taken;
}

double startProgram(const SoundServer &server)
{
    const QStringList arguments{u"--raw"_s, u"--format=float32le"_s, u"--channels=1"_s, u"--rate=44100"_s,
                                u"--latency-msec=20"_s};
    const Instant from = std::chrono::steady_clock::now();
    ChildProcess program(u"parecord"_s, arguments, server.environment());
    if (!program.process().waitForReadyRead(5000)) {
        throw std::runtime_error("parecord heard nothing");
    }
    return milliseconds(from, std::chrono::steady_clock::now());
}

void measure()
{
    const QTemporaryDir home; // the client library keeps its cookie there
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "TMPDIR"}) {
        qputenv(name, home.path().toLocal8Bit());
    }
    const SoundServer server;
    const XdgFiles files;
    SystemClock clock;
    PulseMicrophone microphone(clock, server.address());
    AudioRecorder recorder(microphone, files);
    BareStream bare(server.address().toLocal8Bit());
    pause(500ms); // both connections are made and idle

    std::vector<double> recorders;
    std::vector<double> streams;
    std::vector<double> programs;
    for (int i = -1; i < rounds; ++i) {
        // The virtual device works in blocks; pauses of different lengths meet it at different points of a block.
        const auto rest = [&] { pause(std::chrono::milliseconds(100 + (i + 1) * 17 % 50)); };
        const double own = startRecorder(recorder);
        rest();
        const double stream = bare.start();
        rest();
        const double program = startProgram(server);
        rest();
        if (i >= 0) { // the first round warms up
            recorders.push_back(own);
            streams.push_back(stream);
            programs.push_back(program);
        }
    }
    const double own = median(recorders);
    report(
        {u"start() to first sample (reference: bare stream, warm connection)"_s, u"ms"_s, own, median(streams), 1.2});
    report({u"start() to first sample (reference: parecord process)"_s, u"ms"_s, own, median(programs)});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runBench(measure);
}
