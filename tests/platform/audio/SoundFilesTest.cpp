// SPDX-License-Identifier: MIT
#include "Sound.h"

#include "platform/LocalizedError.h"
#include "platform/audio/SoundFiles.h"
#include "support/ChildProcess.h"
#include "support/Printing.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class SoundFilesTest : public testing::Test {
protected:
    /// A file that ffmpeg makes of a tone or a picture.
    QString make(const QString &name, const QString &source, const QString &options = {}) const
    {
        QString path = m_folder.filePath(name);
        run(u"ffmpeg"_s, QStringList{u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, source} +
                             options.split(u' ', Qt::SkipEmptyParts) + QStringList{u"file:"_s + path});
        return path;
    }

    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// Empty when it went well, else what the user is told.
    QString convert(
        const QString &source, const SoundFiles::Progress &progress = [](double) { return true; })
    {
        QFile::remove(m_destination);
        try {
            SoundFiles::convert(source, m_destination, speechSettings(), progress);
            return {};
        } catch (const LocalizedError &error) {
            EXPECT_FALSE(QFile::exists(m_destination)) << source.toStdString();
            return error.localizedDescription();
        }
    }

    static inline const QString tone = u"sine=frequency=1000:duration=2:sample_rate=%1"_s;

    QTemporaryDir m_folder;
    QString m_destination = m_folder.filePath(u"upload.m4a"_s);
};

TEST_F(SoundFilesTest, SoundOfAnyKindBecomesWhatTheMicrophoneIsRecordedTo)
{
    const struct {
        QString name;
        int rate;
        QString options;
    } cases[] = {
        {u"mono.wav"_s, 8000, {}},
        {u"loud film.mkv"_s, 44100, u"-f lavfi -i color=red:size=32x32:duration=2 -c:v mpeg4 -c:a pcm_s16le"_s},
        {u"six.wav"_s, 48000, u"-ac 6 -c:a pcm_s24le"_s},
        {u"talk.mp3"_s, 22050, u"-ac 2"_s},
        {u"talk.ogg"_s, 44100, u"-c:a libvorbis -ac 2"_s},
        {u"talk.opus"_s, 48000, u"-c:a libopus"_s},
        {u"talk.m4a"_s, 44100, u"-c:a aac"_s},
        {u"broadcast.ts"_s, 44100, u"-c:a aac -output_ts_offset 60"_s},
        {u"http: a note, 12:30.flac"_s, 44100, {}},
    };
    for (const auto &[name, rate, options] : cases) {
        std::vector<double> parts;
        const QString failure = convert(make(name, tone.arg(rate), options), [&parts](double part) {
            parts.push_back(part);
            return true;
        });
        ASSERT_EQ(failure, QString()) << name.toStdString();
        const QJsonObject stream = probe(m_destination);
        EXPECT_EQ(stream[u"codec_name"_s], u"aac"_s);
        EXPECT_EQ(stream[u"sample_rate"_s], u"44100"_s);
        EXPECT_EQ(stream[u"channels"_s], 1);
        const auto samples = decode(m_destination);
        EXPECT_NEAR(double(samples.size()) / 44100, 2, 0.1) << name.toStdString();
        EXPECT_NEAR(frequency(samples, 44100), 1000, 10) << name.toStdString();
        const auto [least, most] = std::ranges::minmax(parts);
        EXPECT_LT(least, 0.3) << name.toStdString();
        EXPECT_GT(most, 0.7) << name.toStdString();
        EXPECT_LE(most, 1) << name.toStdString();
        EXPECT_EQ(QFile::permissions(m_destination) & 0x0FFF, QFile::ReadUser | QFile::WriteUser);
    }
}

TEST_F(SoundFilesTest, WhatHasNoSoundIsNamedAndNothingIsLeft)
{
    EXPECT_EQ(convert(m_folder.filePath(u"absent.wav"_s)),
              u"There is no file %1."_s.arg(m_folder.filePath(u"absent.wav"_s)));
    EXPECT_EQ(convert(write(u"notes.txt"_s, "Buy milk.\n")), u"notes.txt is no sound file that can be read."_s);
    EXPECT_EQ(convert(write(u"empty.wav"_s, {})), u"empty.wav is no sound file that can be read."_s);
    EXPECT_EQ(convert(m_folder.path()),
              QFileInfo(m_folder.path()).fileName() + u" is no sound file that can be read."_s);
    EXPECT_EQ(convert(make(u"film.mp4"_s, u"color=red:size=32x32:duration=1"_s)), u"There is no sound in film.mp4."_s);
    const QString wave = make(u"full.wav"_s, tone.arg(8000));
    QFile file(wave);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(convert(write(u"head.wav"_s, file.read(44))), u"head.wav is no sound file that can be read."_s);
}

TEST_F(SoundFilesTest, WhatCanBeHeardOfAnOddFileIsKeptWithoutAWordFromTheLibrary)
{
    const auto bytes = [](const QString &path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray mono = bytes(make(u"mono.mp3"_s, tone.arg(44100)));
    const QByteArray stereo = bytes(make(u"stereo.mp3"_s, tone.arg(44100), u"-ac 2"_s));
    QByteArray scratched = mono;
    scratched.replace(scratched.size() / 2, 300, QByteArray(300, 'x'));
    const struct {
        const char *what;
        QByteArray content;
        double seconds;
    } cases[] = {{"cut short", mono.first(mono.size() / 2), 1},
                 {"scratched", scratched, 2},
                 {"from one channel to two", mono + stereo, 4},
                 {"from two channels to one", stereo + mono, 4}};
    for (const auto &[what, content, seconds] : cases) {
        testing::internal::CaptureStderr();
        const QString failure = convert(write(u"odd.mp3"_s, content));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << what;
        EXPECT_EQ(failure, QString()) << what;
        const auto samples = decode(m_destination);
        EXPECT_NEAR(double(samples.size()) / 44100, seconds, 0.2) << what;
        EXPECT_NEAR(frequency(samples, 44100), 1000, 20) << what;
    }
}

TEST_F(SoundFilesTest, StopsWhenAsked)
{
    int calls = 0;
    EXPECT_EQ(convert(make(u"long.wav"_s, tone.arg(44100)), [&calls](double) { return ++calls < 3; }), u"Stopped."_s);
    EXPECT_EQ(calls, 3);
}

TEST_F(SoundFilesTest, WritesOverNoFile)
{
    const QString source = make(u"a.wav"_s, tone.arg(8000));
    write(u"upload.m4a"_s, "mine");
    EXPECT_THROW(SoundFiles::convert(source, m_destination, speechSettings(), [](double) { return true; }),
                 LocalizedError);
    EXPECT_EQ(QFileInfo(m_destination).size(), 4);
}

} // namespace
