// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Microphone.h"

#include <QJsonObject>
#include <QString>

#include <vector>

/// Mono AAC in MPEG-4, 44100 Hz, 64 kbit/s.
AudioSettings speechSettings();

/// A sine of half the full scale, which is -9 dB.
std::vector<float> tone(double hertz, int rate, double seconds);

/// Writes samples as raw 16-bit sound.
void writeRaw(const QString &path, const std::vector<float> &samples);

/// What ffprobe says about the file and its only stream, in one object; throws std::runtime_error for a file it can't
/// read.
QJsonObject probe(const QString &path);

/// Decodes a file to 44100 samples a second.
std::vector<float> decode(const QString &path);

/// Frequency of a tone, from its zero crossings.
double frequency(const std::vector<float> &samples, int rate);
