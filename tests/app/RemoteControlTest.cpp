// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include "app/remote/RemoteControl.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class RemoteControlTest : public AppModelFixture {
protected:
    void open()
    {
        start();
        remote.setTarget(*model, fake.application);
    }

    RemoteControl remote{QDBusConnection(u"none"_s)};
};

} // namespace

TEST_F(RemoteControlTest, APressIsHeldForAsLongAsItsDictationLasts)
{
    EXPECT_FALSE(remote.perform(u"press"_s)); // no target yet
    open();
    EXPECT_FALSE(remote.perform(u"shout"_s));
    remote.perform(u"press"_s);
    fake.hotKeys.press(KeyCode::escape, 0); // cancelled, and never released
    remote.perform(u"press"_s);
    EXPECT_EQ(model->state().value, Case::Recording);
    fake.clock.advance(1s);
    remote.perform(u"release"_s);
    EXPECT_EQ(model->state().value, Case::Transcribing);
    ASSERT_TRUE(awaitIdle());

    fake.microphone.refusesToRecord = true;
    remote.perform(u"press"_s); // refused, so nothing is held
    fake.microphone.refusesToRecord = false;
    remote.perform(u"press"_s);
    EXPECT_EQ(model->state().value, Case::Recording);
    fake.clock.advance(1s);
    remote.perform(u"toggle"_s); // goes on hands-free, and its release ends nothing
    remote.perform(u"release"_s);
    EXPECT_EQ(model->state().handsFree, true);
}

TEST_F(RemoteControlTest, ToggleIsATapInEveryTriggerMode)
{
    open();
    for (const TriggerMode mode : {TriggerMode::Both, TriggerMode::Hold, TriggerMode::Toggle}) {
        model->setTriggerMode(mode);
        remote.perform(u"toggle"_s);
        EXPECT_TRUE(model->state().handsFree);
        fake.clock.advance(1s);
        remote.perform(u"toggle"_s);
        EXPECT_EQ(model->state().value, Case::Transcribing);
        ASSERT_TRUE(awaitIdle());
    }
}

TEST_F(RemoteControlTest, TheStatusNamesWhatIsWrongAndWhatIsNotKnownIsLeftOut)
{
    fake.hotKeys.takenByOthers.insert({KeyCode::g, controlOption});
    remote.setTarget(*model, fake.application);
    EXPECT_FALSE(remote.status().contains(u"balance"_s));
    start();
    const QVariantMap status = remote.status();
    EXPECT_EQ(status.value(u"balance"_s), 10);
    EXPECT_EQ(status.value(u"groupShortcutError"_s), u"⌃⌥ G is already in use. Pick a different shortcut."_s);
    EXPECT_FALSE(status.contains(u"shortcutError"_s));
    EXPECT_TRUE(status.value(u"accessibility"_s).toBool());
}
