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

    bool isHandsFree() const { return model->state().handsFree; }

    RemoteControl remote{QDBusConnection(u"none"_s)};
};

} // namespace

TEST_F(RemoteControlTest, RepeatedPressesAndReleasesAreOne)
{
    open();
    EXPECT_TRUE(remote.perform(u"release"_s)); // nothing is held
    EXPECT_EQ(model->state().value, Case::Idle);
    remote.perform(u"press"_s);
    remote.perform(u"press"_s);
    EXPECT_EQ(model->state().value, Case::Recording);
    remote.perform(u"release"_s); // a tap
    remote.perform(u"release"_s);
    EXPECT_TRUE(isHandsFree());
    remote.perform(u"cancel"_s);
    remote.perform(u"cancel"_s);
    EXPECT_EQ(model->state().value, Case::Idle);

    remote.perform(u"press"_s);
    fake.hotKeys.press(KeyCode::escape, 0); // cancelled, and never released
    remote.perform(u"press"_s);
    EXPECT_EQ(model->state().value, Case::Recording);
    fake.clock.advance(1s);
    remote.perform(u"release"_s);
    EXPECT_EQ(model->state().value, Case::Transcribing);
    ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));

    fake.microphone.refusesToRecord = true;
    remote.perform(u"press"_s); // refused, so nothing is held
    fake.microphone.refusesToRecord = false;
    remote.perform(u"press"_s);
    EXPECT_EQ(model->state().value, Case::Recording);
}

TEST_F(RemoteControlTest, ToggleIsATapInEveryTriggerMode)
{
    open();
    for (const TriggerMode mode : {TriggerMode::Both, TriggerMode::Hold, TriggerMode::Toggle}) {
        model->setTriggerMode(mode);
        remote.perform(u"toggle"_s);
        EXPECT_TRUE(isHandsFree());
        fake.clock.advance(1s);
        remote.perform(u"toggle"_s);
        EXPECT_EQ(model->state().value, Case::Transcribing);
        ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
    }
    press(); // held by hand
    remote.perform(u"toggle"_s);
    EXPECT_TRUE(isHandsFree());
}

TEST_F(RemoteControlTest, StatusAndTheOtherActions)
{
    fake.hotKeys.takenByOthers.insert({KeyCode::g, controlOption});
    EXPECT_FALSE(remote.perform(u"quit"_s)); // no target yet
    open();
    model->groups().add(u"Work"_s);
    EXPECT_FALSE(remote.status().contains(u"group"_s));
    remote.perform(u"next-group"_s);
    remote.perform(u"edit-groups"_s);
    const QVariantMap status = remote.status();
    EXPECT_EQ(status.value(u"state"_s), u"idle"_s);
    EXPECT_EQ(status.value(u"group"_s), u"Work"_s);
    EXPECT_EQ(status.value(u"balance"_s), 10);
    EXPECT_EQ(status.value(u"groupShortcutError"_s), u"⌃⌥ G is already in use. Pick a different shortcut."_s);
    EXPECT_TRUE(status.value(u"historyVisible"_s).toBool());
    EXPECT_TRUE(model->historyWindow().isEditingGroups());
    EXPECT_FALSE(remote.perform(u"shout"_s));
    remote.perform(u"quit"_s);
    EXPECT_TRUE(fake.application.isTerminated);
}
