// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "Sound.h"

#include "platform/audio/PulseMicrophone.h"
#include "platform/audio/Reconnection.h"
#include "support/Await.h"
#include "support/SoundServer.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isConnected(const SoundServer &server)
{
    return server.control({u"list"_s, u"clients"_s}).contains("app.quillo.Quillo");
}

class ReconnectionTest : public testing::Test {
protected:
    SoundServer m_server;
    FakeClock m_clock;
};

TEST_F(ReconnectionTest, FollowsTheSocketOfAServerThatComesBackAndRecordsAtOnce)
{
    PulseMicrophone microphone(m_clock, m_server.address());
    for (const bool isAwaited : {true, false}) {
        EXPECT_TRUE(await([&] { return isConnected(m_server); }));
        m_server.kill();
        EXPECT_TRUE(await([&] { return m_clock.pending() > 0; })); // the loss is known
        m_server.start();
        EXPECT_TRUE(!isAwaited || await([&] { return isConnected(m_server); }));
        const QTemporaryDir folder;
        const auto recorder = microphone.makeRecorder(folder.filePath(u"speech.m4a"_s), speechSettings());
        EXPECT_TRUE(recorder->record());
        EXPECT_TRUE(await([&] { return recorder->currentTime() > 0; }));
        recorder->stop();
        EXPECT_EQ(m_clock.pending(), 0);
    }
}

TEST_F(ReconnectionTest, TriesAgainInTimeWhereThereIsNoFolderToWatch)
{
    m_server.kill();
    const QString folder = Reconnection::socketFolder(m_server.address().toLocal8Bit());
    EXPECT_TRUE(QDir(folder).removeRecursively());
    const PulseMicrophone microphone(m_clock, m_server.address());
    EXPECT_TRUE(await([&] { return m_clock.pending() > 0; }));
    m_server.start();
    EXPECT_FALSE(isConnected(m_server));
    m_clock.advance(100ms);
    EXPECT_TRUE(await([&] { return isConnected(m_server); }));
}

TEST(Reconnection, FindsTheFolderOfALocalSocket)
{
    const auto folder = [](const char *server) { return Reconnection::socketFolder(server).toStdString(); };
    EXPECT_EQ(folder("unix:/run/a/native"), "/run/a");
    EXPECT_EQ(folder("/run/a/native"), "/run/a");
    EXPECT_EQ(folder("{0123abcd}unix:/run/a/native"), "/run/a");
    EXPECT_EQ(folder("tcp:127.0.0.1:4713"), "");

    qputenv("PULSE_RUNTIME_PATH", "/run/b");
    EXPECT_EQ(folder(""), "/run/b");
    qputenv("PULSE_SERVER", "unix:/run/c/native");
    EXPECT_EQ(folder(""), "/run/c");
    qunsetenv("PULSE_SERVER");
    qunsetenv("PULSE_RUNTIME_PATH");
}

} // namespace
