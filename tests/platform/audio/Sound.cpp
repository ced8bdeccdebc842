// SPDX-License-Identifier: MIT
#include "Sound.h"

#include "support/ChildProcess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <cstring>
#include <numbers>

using namespace Qt::StringLiterals;

AudioSettings speechSettings()
{
    return {.formatId = "aac ", .sampleRate = 44100, .channels = 1, .bitRate = 64000};
}

std::vector<float> tone(double hertz, int rate, double seconds)
{
    std::vector<float> samples(size_t(seconds * rate));
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = float(0.5 * std::sin(2 * std::numbers::pi * hertz * double(i) / rate));
    }
    return samples;
}

void writeRaw(const QString &path, const std::vector<float> &samples)
{
    std::vector<qint16> raw;
    raw.reserve(samples.size());
    for (const float sample : samples) {
        raw.push_back(qint16(std::lround(sample * 32767)));
    }
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(reinterpret_cast<const char *>(raw.data()), qint64(sizeof(qint16)) * qint64(raw.size()));
}

QJsonObject probe(const QString &path)
{
    const QByteArray json =
        run(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-of"_s, u"json"_s, u"-show_format"_s, u"-show_streams"_s, path});
    const QJsonObject answer = QJsonDocument::fromJson(json).object();
    QJsonObject merged = answer[u"streams"_s].toArray().first().toObject();
    merged[u"format_name"_s] = answer[u"format"_s].toObject()[u"format_name"_s];
    return merged;
}

std::vector<float> decode(const QString &path)
{
    const QByteArray raw =
        run(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, path, u"-f"_s, u"f32le"_s, u"-ar"_s, u"44100"_s, u"-"_s});
    std::vector<float> samples(size_t(raw.size()) / sizeof(float));
    std::memcpy(samples.data(), raw.constData(), samples.size() * sizeof(float));
    return samples;
}

double frequency(const std::vector<float> &samples, int rate)
{
    constexpr float noise = 0.02F; // of an encoder, around a silence
    std::vector<size_t> rises;
    bool isLow = false;
    for (size_t i = 0; i < samples.size(); ++i) {
        if (isLow && samples[i] > noise) {
            rises.push_back(i);
        }
        isLow = samples[i] < -noise || (isLow && samples[i] <= noise);
    }
    return rises.size() < 2 ? 0 : double(rises.size() - 1) * rate / double(rises.back() - rises.front());
}
