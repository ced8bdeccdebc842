// SPDX-License-Identifier: MIT
#include "audio/AudioRecorder.h"
#include "bench/Bench.h"
#include "platform/audio/AacFile.h"
#include "platform/audio/PulseMicrophone.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "support/SoundServer.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

// From release to the finished file: live from the sound server, and with sound fed to the encoder at full speed.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int rate = 44100;
constexpr double limit = 20; // milliseconds
constexpr int liveRounds = 3;
constexpr int fedRounds = 3;

/// A spoken recording that comes with the operating system: 16 bits, mono.
QByteArray speech()
{
    QFile file(u"/usr/share/pocketsphinx/test/data/goforward.raw"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the spoken recording is missing");
    }
    return file.readAll();
}

double finishLive(AudioRecorder &recorder)
{
    recorder.start([] {});
    pause(10s);
    std::optional<Recording> recording;
    const double taken = timed([&] { recording = recorder.stop(); });
    if (!recording || recording->seconds < 9) {
        throw std::runtime_error("ten seconds were not recorded");
    }
    AudioRecorder::discard(recording->path);
    return taken;
}

double finishFed(const QString &path, const std::vector<float> &samples, int seconds)
{
    AacFile file(path, {.formatId = "aac ", .sampleRate = rate, .channels = 1, .bitRate = 64000});
    for (size_t left = size_t(seconds) * rate; left > 0;) {
        const size_t count = std::min(left, samples.size());
        if (!file.write(std::span(samples).first(count))) {
            throw std::runtime_error("the sound can't be encoded");
        }
        left -= count;
    }
    const double taken = timed([&] { file.finish(); });
    file.remove();
    return taken;
}

void measure()
{
    const QTemporaryDir home; // the client library keeps its cookie there
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "TMPDIR"}) {
        qputenv(name, home.path().toLocal8Bit());
    }
    const QByteArray raw = speech();
    const auto *words = reinterpret_cast<const int16_t *>(raw.constData());
    std::vector<float> samples;
    std::transform(words, words + raw.size() / 2, std::back_inserter(samples),
                   [](int16_t sample) { return float(sample) / 32768; });

    std::vector<double> shortOnes;
    std::vector<double> longOnes;
    for (int i = 0; i < fedRounds; ++i) {
        shortOnes.push_back(finishFed(home.filePath(u"short.m4a"_s), samples, 10));
        longOnes.push_back(finishFed(home.filePath(u"long.m4a"_s), samples, 900));
    }

    const QString longSpeech = home.filePath(u"speech.raw"_s);
    QFile file(longSpeech);
    file.open(QIODevice::WriteOnly);
    file.write(raw.repeated(30));
    file.close();
    const SoundServer server;
    const auto playing = server.play(longSpeech, 16000);
    const XdgFiles files;
    SystemClock clock;
    PulseMicrophone microphone(clock, server.address());
    AudioRecorder recorder(microphone, files);
    pause(500ms);
    std::vector<double> liveOnes;
    liveOnes.reserve(liveRounds);
    for (int i = 0; i < liveRounds; ++i) {
        liveOnes.push_back(finishLive(recorder));
    }

    report({u"release to finished file, 10 s live"_s, u"ms"_s, median(liveOnes), {}, limit, Figure::LimitOn::Value});
    report(
        {u"finish the file, 10 s fed to the encoder"_s, u"ms"_s, median(shortOnes), {}, limit, Figure::LimitOn::Value});
    report({u"finish the file, 15 min fed to the encoder (reference: 10 s fed)"_s, u"ms"_s, median(longOnes),
            median(shortOnes), limit, Figure::LimitOn::Value});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runBench(measure);
}
