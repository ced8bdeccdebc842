// SPDX-License-Identifier: MIT
#include "audio/AudioRecorder.h"

#include "FakeFiles.h"
#include "FakeMicrophone.h"
#include "support/Printing.h"

#include "service/ApiError.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AudioRecorderTest : public ::testing::Test {
protected:
    FakeFiles files;
    FakeMicrophone microphone;
    AudioRecorder recorder{microphone, files};
};

} // namespace

TEST_F(AudioRecorderTest, HandsOverOneFileWithItsLength)
{
    recorder.start([] {});
    const QString first = microphone.path;
    static const QRegularExpression name(u"/dictation-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\.m4a$"_s);
    EXPECT_TRUE(name.match(first).hasMatch());
    EXPECT_EQ(microphone.settings.formatId, "aac ");
    EXPECT_EQ(microphone.settings.sampleRate, 44100);
    EXPECT_EQ(microphone.settings.channels, 1);
    EXPECT_EQ(microphone.settings.bitRate, 64000);
    microphone.seconds = 2.5;
    const auto recording = recorder.stop();
    ASSERT_TRUE(recording);
    EXPECT_EQ(recording->path, first);
    EXPECT_EQ(recording->seconds, 2.5);
    EXPECT_FALSE(recorder.stop());

    recorder.start([] {});
    EXPECT_NE(microphone.path, first);
}

TEST_F(AudioRecorderTest, RefusalsReachTheCallerAndLeaveNothing)
{
    microphone.refusesToRecord = true;
    try {
        recorder.start([] {});
        FAIL() << "started";
    } catch (const ApiError &error) {
        EXPECT_EQ(error.code(), u"no_audio"_s);
        EXPECT_EQ(error.localizedDescription(), u"Couldn't start the microphone."_s);
        EXPECT_EQ(error.status(), 0);
    }
    EXPECT_TRUE(files.recordings().isEmpty());
    microphone.refusesToMake = true;
    try {
        recorder.start([] {});
        FAIL() << "started";
    } catch (const LocalizedError &error) {
        EXPECT_EQ(error.localizedDescription(), u"The disk is full."_s);
    }
    EXPECT_EQ(recorder.recorder(), nullptr);
}

TEST_F(AudioRecorderTest, PermissionFollowsTheAuthorisationStatus)
{
    using Authorization = Microphone::Authorization;
    using Permission = AudioRecorder::Permission;
    for (const auto &[status, expected] : {std::pair{Authorization::Authorized, Permission::Granted},
                                           {Authorization::NotDetermined, Permission::Undetermined},
                                           {Authorization::Restricted, Permission::Denied},
                                           {Authorization::Denied, Permission::Denied}}) {
        microphone.authorization = status;
        EXPECT_EQ(recorder.permission(), expected);
    }
}
