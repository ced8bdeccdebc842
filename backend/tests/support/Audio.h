// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

/// A mono MPEG-4 file as the desktop program records it, made by ffmpeg from `input` (its options up to "-i …").
inline std::string recordingOf(const QStringList &input, const QStringList &codec = {QStringLiteral("aac")})
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(QStringLiteral("recording.m4a"));
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 QStringList{QStringLiteral("-v"), QStringLiteral("error")} + input +
                     QStringList{QStringLiteral("-ac"), QStringLiteral("1"), QStringLiteral("-ar"),
                                 QStringLiteral("44100"), QStringLiteral("-b:a"), QStringLiteral("64k"),
                                 QStringLiteral("-c:a")} +
                     codec + QStringList{path});
    ffmpeg.waitForFinished();
    EXPECT_EQ(ffmpeg.exitCode(), 0) << ffmpeg.readAllStandardError().toStdString();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

inline QStringList generated(const char *source)
{
    return {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), QString::fromLatin1(source)};
}

/// 1.5 s of a tone that comes and goes as syllables do, so that the gate lets it pass: two started seconds.
inline const std::string &tone()
{
    static const auto file = recordingOf(generated("sine=frequency=440:duration=1.5,tremolo=f=4:d=0.9"));
    return file;
}

inline const std::string &silence()
{
    static const auto file = recordingOf(generated("anullsrc=duration=1.5"));
    return file;
}

/// "Go forward ten meters."
inline std::string spokenCommand()
{
    return recordingOf({QStringLiteral("-f"), QStringLiteral("s16le"), QStringLiteral("-ar"), QStringLiteral("16000"),
                        QStringLiteral("-ac"), QStringLiteral("1"), QStringLiteral("-i"),
                        QStringLiteral("/usr/share/pocketsphinx/test/data/goforward.raw")});
}
