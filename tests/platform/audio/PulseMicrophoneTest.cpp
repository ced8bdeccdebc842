// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "Sound.h"

#include "platform/LocalizedError.h"
#include "platform/audio/PulseMicrophone.h"
#include "support/Await.h"
#include "support/SoundServer.h"

#include <QFileInfo>
#include <QTcpServer>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class PulseMicrophoneTest : public testing::Test {
protected:
    std::unique_ptr<AudioFileRecorder> makeRecorder(PulseMicrophone &microphone)
    {
        const QString path = m_folder.filePath(u"%1.m4a"_s.arg(++m_files));
        auto recorder = microphone.makeRecorder(path, speechSettings());
        recorder->setMeteringEnabled(true);
        recorder->setEndedHandler([this] { ++m_ended; });
        return recorder;
    }

    /// A recorder that has heard something.
    std::unique_ptr<AudioFileRecorder> startRecording(PulseMicrophone &microphone)
    {
        auto recorder = makeRecorder(microphone);
        EXPECT_TRUE(recorder->record());
        EXPECT_TRUE(await([&] { return recorder->currentTime() > 0.2; }));
        return recorder;
    }

    /// Why nothing can be recorded; empty when it can. No file is left.
    QString refusal(PulseMicrophone &microphone)
    {
        QString reason = u"Couldn't start"_s;
        try {
            const auto recorder = makeRecorder(microphone);
            reason = recorder->record() ? QString() : reason;
            EXPECT_EQ(QFile::exists(recorder->path()), reason.isEmpty());
        } catch (const LocalizedError &error) {
            reason = error.localizedDescription();
            EXPECT_FALSE(QFile::exists(m_folder.filePath(u"%1.m4a"_s.arg(m_files))));
        }
        return reason;
    }

    static bool hasStreams(const SoundServer &server)
    {
        // the microphone itself is one, of another driver
        return server.control({u"list"_s, u"short"_s, u"source-outputs"_s}).contains("protocol-native");
    }

    QTemporaryDir m_folder;
    FakeClock m_clock;
    int m_files = 0;
    int m_ended = 0;
};

TEST_F(PulseMicrophoneTest, RecordsWhatIsHeardWhileItIsHeard)
{
    const SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    const auto recorder = startRecording(microphone);
    EXPECT_TRUE(recorder->isRecording());

    writeRaw(m_folder.filePath(u"tone.raw"_s), tone(1000, 48000, 1.5));
    const auto player = server.play(m_folder.filePath(u"tone.raw"_s), 48000);
    const auto hearsTone = [&] {
        recorder->updateMeters();
        return std::abs(recorder->averagePower(0) + 9.03) < 0.1;
    };
    EXPECT_TRUE(await(hearsTone));
    EXPECT_EQ(recorder->averagePower(1), -160);
    EXPECT_TRUE(await([&] { return QFileInfo(recorder->path()).size() > 4000; }));
    EXPECT_TRUE(await([&] { return player->process().state() == QProcess::NotRunning; }));
    const double played = recorder->currentTime();
    EXPECT_TRUE(await([&] { return recorder->currentTime() > played + 0.2; })); // it is heard a little later
    recorder->stop();
    recorder->stop();
    EXPECT_FALSE(recorder->isRecording());

    const QJsonObject file = probe(recorder->path());
    EXPECT_EQ(file[u"codec_name"_s], u"aac"_s);
    EXPECT_EQ(file[u"profile"_s], u"LC"_s);
    EXPECT_EQ(file[u"channels"_s], 1);
    EXPECT_EQ(file[u"sample_rate"_s], u"44100"_s);
    EXPECT_THAT(file[u"format_name"_s].toString().toStdString(), testing::HasSubstr("mp4"));
    EXPECT_EQ(file[u"duration_ts"_s].toInt(), std::lround(recorder->currentTime() * 44100));

    const auto loud = [](float sample) { return std::abs(sample) > 0.2; };
    auto sound = decode(recorder->path());
    sound.erase(sound.begin(), std::ranges::find_if(sound, loud));
    sound.erase(std::find_if(sound.rbegin(), sound.rend(), loud).base(), sound.end());
    EXPECT_NEAR(double(sound.size()) / 44100, 1.5, 0.02);
    EXPECT_NEAR(frequency(sound, 44100), 1000, 5);
}

TEST_F(PulseMicrophoneTest, LeavesNoStreamOnTheServerBetweenRecordings)
{
    const SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    for (int i = 0; i < 2; ++i) {
        const auto recorder = startRecording(microphone);
        EXPECT_TRUE(hasStreams(server));
        recorder->stop();
        EXPECT_TRUE(await([&] { return !hasStreams(server); }));
        EXPECT_EQ(m_clock.pending(), 0);
    }
}

TEST_F(PulseMicrophoneTest, ARecordingStoppedBeforeTheServerAnsweredLeavesNoStream)
{
    SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    startRecording(microphone)->stop();
    server.freeze();
    const auto brief = makeRecorder(microphone);
    EXPECT_TRUE(brief->record());
    brief->stop();
    EXPECT_EQ(QFileInfo(brief->path()).size(), 0);
    server.thaw();
    startRecording(microphone)->stop(); // answered after the brief one
    EXPECT_TRUE(await([&] { return !hasStreams(server); }));
}

TEST_F(PulseMicrophoneTest, RefusesToRecordWithoutAServer)
{
    PulseMicrophone microphone(m_clock, u"unix:"_s + m_folder.filePath(u"native"_s));
    EXPECT_EQ(refusal(microphone), u"Couldn't start"_s);
    EXPECT_EQ(microphone.authorizationStatus(), Microphone::Authorization::Authorized);
}

TEST_F(PulseMicrophoneTest, WithoutAMicrophoneEndsAnEarlyRecordingEmptyAndRefusesTheNext)
{
    SoundServer server(SoundServer::Devices::OutputOnly);
    server.freeze(); // it must not answer too soon
    PulseMicrophone microphone(m_clock, server.address());
    const auto early = makeRecorder(microphone);
    EXPECT_TRUE(early->record());
    server.thaw();
    EXPECT_TRUE(await([&] { return m_ended == 1; }));
    EXPECT_FALSE(early->isRecording());
    early->stop();
    EXPECT_EQ(QFileInfo(early->path()).size(), 0);

    EXPECT_EQ(refusal(microphone), u"There is no microphone. Plug one in."_s);
    EXPECT_EQ(microphone.authorizationStatus(), Microphone::Authorization::Authorized) << "it may be used";
    EXPECT_FALSE(hasStreams(server));
}

TEST_F(PulseMicrophoneTest, FollowsMicrophonesThatComeAndGo)
{
    const QString none = u"There is no microphone. Plug one in."_s;
    const SoundServer server(SoundServer::Devices::None);
    PulseMicrophone microphone(m_clock, server.address());
    EXPECT_TRUE(await([&] { return refusal(microphone) == none; }));
    server.addOutput();
    for (const bool isDefault : {true, false}) {
        EXPECT_TRUE(await([&] { return refusal(microphone) == none; }));
        server.addMicrophone();
        if (!isDefault) { // the server stays with the monitor that it fell back to
            server.control({u"set-default-source"_s, u"vmic.monitor"_s});
        }
        EXPECT_TRUE(await([&] { return refusal(microphone).isEmpty(); }));
        EXPECT_GT(startRecording(microphone)->currentTime(), 0);
        server.removeMicrophone();
    }
}

TEST_F(PulseMicrophoneTest, IsDeniedByAServerThatRefusesTheUser)
{
    QTcpServer port; // a free one, for the only transport that asks for the cookie
    port.listen(QHostAddress::LocalHost);
    const auto number = port.serverPort();
    port.close();
    const SoundServer server;
    server.control(
        {u"load-module"_s, u"module-native-protocol-tcp"_s, u"listen=127.0.0.1"_s, u"port=%1"_s.arg(number)});

    PulseMicrophone microphone(m_clock, u"tcp:127.0.0.1:%1"_s.arg(number));
    EXPECT_TRUE(await([&] { return microphone.authorizationStatus() == Microphone::Authorization::Denied; }));
    EXPECT_FALSE(resultOf(microphone.requestAccess()));
}

TEST_F(PulseMicrophoneTest, AnInterruptionEndsTheRecordingAndKeepsWhatWasHeard)
{
    const std::pair<const char *, std::function<void(SoundServer &)>> cases[] = {
        {"server killed", [](SoundServer &server) { server.kill(); }},
        {"microphone removed", [](SoundServer &server) { server.removeMicrophone(); }},
        {"microphone suspended",
         [](SoundServer &server) {
             server.control({u"suspend-source"_s, u"mic"_s, u"1"_s});
         }},
    };
    for (const auto &[what, happen] : cases) {
        for (const bool isStopped : {false, true}) {
            m_ended = 0;
            SoundServer server;
            PulseMicrophone microphone(m_clock, server.address());
            const auto recorder = startRecording(microphone);
            happen(server);
            if (isStopped) {
                recorder->stop();
                QCoreApplication::processEvents();
                EXPECT_EQ(m_ended, 0) << what;
                continue;
            }
            EXPECT_TRUE(await([&] { return m_ended == 1; })) << what;
            EXPECT_FALSE(recorder->isRecording());
            recorder->stop();
            EXPECT_GT(recorder->currentTime(), 0.2);
            EXPECT_EQ(probe(recorder->path())[u"duration_ts"_s].toInt(), std::lround(recorder->currentTime() * 44100));
        }
    }
}

TEST_F(PulseMicrophoneTest, EndsARecordingThatHearsNothingAnyMore)
{
    SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    const auto recorder = startRecording(microphone);
    for (int i = 0; i < 4; ++i) {
        const double heard = recorder->currentTime();
        EXPECT_TRUE(await([&] { return recorder->currentTime() > heard; }));
        m_clock.advance(400ms);
    }
    EXPECT_EQ(m_ended, 0);

    server.freeze();
    const auto ended = [&] {
        m_clock.advance(250ms);
        return m_ended == 1;
    };
    EXPECT_TRUE(await(ended));
    recorder->stop();
    EXPECT_EQ(probe(recorder->path())[u"duration_ts"_s].toInt(), std::lround(recorder->currentTime() * 44100));
}

TEST_F(PulseMicrophoneTest, GivesTheFirstSoundTwoSecondsAndThenEndsEmpty)
{
    SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    startRecording(microphone)->stop();
    server.freeze();
    const auto recorder = makeRecorder(microphone);
    EXPECT_TRUE(recorder->record());
    m_clock.advance(1900ms);
    EXPECT_EQ(m_ended, 0);
    m_clock.advance(100ms);
    EXPECT_EQ(m_ended, 1);
    recorder->stop();
    EXPECT_EQ(QFileInfo(recorder->path()).size(), 0);
}

TEST_F(PulseMicrophoneTest, ARecorderDestroyedWhileRecordingLeavesACompleteFile)
{
    const SoundServer server;
    PulseMicrophone microphone(m_clock, server.address());
    const QString path = startRecording(microphone)->path();
    EXPECT_GT(probe(path)[u"duration_ts"_s].toInt(), 0.2 * 44100);
}

} // namespace
