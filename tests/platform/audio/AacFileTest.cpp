// SPDX-License-Identifier: MIT
#include "Sound.h"

#include "platform/LocalizedError.h"
#include "platform/audio/AacFile.h"

#include <QScopeGuard>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

class AacFileTest : public testing::Test {
protected:
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"speech.m4a"_s);
};

TEST_F(AacFileTest, IsAsLongAsItsSamplesAndKeepsThePitch)
{
    for (const size_t count : {1U, 1023U, 1024U, 1025U, 44100U}) {
        const QString path = m_folder.filePath(u"%1.m4a"_s.arg(count));
        auto samples = tone(1000, 44100, 1);
        samples.resize(count);
        AacFile file(path, speechSettings());
        EXPECT_TRUE(file.write(samples));
        file.finish();
        EXPECT_EQ(probe(path)[u"duration_ts"_s].toInt(), int(count));
        if (count == 44100) {
            EXPECT_NEAR(frequency(decode(path), 44100), 1000, 5);
        }
    }
}

TEST_F(AacFileTest, IsEmptyAndPrivateWithoutSamples)
{
    AacFile file(m_path, speechSettings());
    EXPECT_EQ(QFile::permissions(m_path) & 0x0FFF, QFile::ReadUser | QFile::WriteUser);
    file.finish();
    file.finish();
    EXPECT_FALSE(file.write(tone(1000, 44100, 1)));
    EXPECT_EQ(QFileInfo(m_path).size(), 0);
}

TEST_F(AacFileTest, RefusesWhatItCannotEncodeAndLeavesNoFile)
{
    const AudioSettings good = speechSettings();
    for (const AudioSettings &settings :
         {AudioSettings{"lpcm", good.sampleRate, 1, good.bitRate}, AudioSettings{good.formatId, 44101, 1, good.bitRate},
          AudioSettings{good.formatId, good.sampleRate, 2, good.bitRate},
          AudioSettings{good.formatId, good.sampleRate, 1, 0},
          AudioSettings{good.formatId, good.sampleRate, 1, 300000}}) {
        EXPECT_THROW(AacFile(m_path, settings), LocalizedError);
        EXPECT_FALSE(QFile::exists(m_path));
    }
}

TEST_F(AacFileTest, NeverWritesToAFileThatExists)
{
    QFile(m_path).open(QIODevice::WriteOnly);
    EXPECT_THROW(AacFile(m_path, speechSettings()), LocalizedError);
    EXPECT_TRUE(QFile::exists(m_path));
}

TEST_F(AacFileTest, IsEmptyRatherThanUnreadableWhenTheDiskIsFull)
{
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{8000, before.rlim_max};
    const auto onLimit = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const auto restore = qScopeGuard([&] {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, onLimit);
    });

    AacFile file(m_path, speechSettings());
    EXPECT_FALSE(file.write(tone(1000, 44100, 20)));
    file.finish();
    EXPECT_EQ(QFileInfo(m_path).size(), 0);
}

} // namespace
