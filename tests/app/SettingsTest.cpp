// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class SettingsTest : public AppModelFixture {};

} // namespace

TEST_F(SettingsTest, AFirstLaunchArmsTheDefaultsAndWritesNoPreference)
{
    consent.withdraw();
    const auto before = fake.preferences.values;
    start();
    EXPECT_TRUE(fake.hotKeys.isRegistered(KeyCode::space, controlOption));
    EXPECT_TRUE(fake.hotKeys.isRegistered(KeyCode::g, controlOption));
    EXPECT_TRUE(fake.hotKeys.isRegistered(KeyCode::h, controlOption));
    EXPECT_EQ(fake.preferences.values, before);
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(SettingsTest, ChangesAreStoredAndReadBack)
{
    start();
    model->setShortcut(Shortcut::modifier(ModifierKey::RightOption));
    model->setGroupShortcut(Shortcut::combo(96, 0, u"F5"_s));
    model->setHistoryShortcut(Shortcut::combo(97, 0, u"F6"_s));
    model->setTriggerMode(TriggerMode::Toggle);
    EXPECT_EQ(fake.keyMonitors.global.size(), 1U);
    EXPECT_FALSE(fake.hotKeys.isRegistered(KeyCode::space, controlOption));
    EXPECT_TRUE(fake.hotKeys.isRegistered(96, 0));
    EXPECT_FALSE(fake.hotKeys.isRegistered(KeyCode::g, controlOption));

    const AppModel next(fake.platform, *client, consent, views());
    EXPECT_EQ(next.shortcut(), Shortcut::modifier(ModifierKey::RightOption));
    EXPECT_EQ(next.groupShortcut(), Shortcut::combo(96, 0, u"F5"_s));
    EXPECT_EQ(next.historyShortcut(), Shortcut::combo(97, 0, u"F6"_s));
    EXPECT_EQ(next.triggerMode(), TriggerMode::Toggle);
}

TEST_F(SettingsTest, PreferencesThatMeanNothingGiveTheDefaults)
{
    fake.preferences.setData(u"shortcut.v2"_s, "{\"combo\":{}}");
    fake.preferences.setString(u"groupShortcut"_s, u"F5"_s);
    fake.preferences.setData(u"historyShortcut"_s, "\xff");
    fake.preferences.setString(u"triggerMode"_s, u"Hold"_s);
    const AppModel next(fake.platform, *client, consent, views());
    EXPECT_EQ(next.shortcut().label(), u"⌃⌥ Space"_s);
    EXPECT_EQ(next.groupShortcut().label(), u"⌃⌥ G"_s);
    EXPECT_EQ(next.historyShortcut().label(), u"⌃⌥ H"_s);
    EXPECT_EQ(next.triggerMode(), TriggerMode::Both);
}

TEST_F(SettingsTest, ATakenCombinationIsNamedAndTheOthersStillWork)
{
    fake.hotKeys.takenByOthers = {{KeyCode::space, controlOption}, {KeyCode::g, controlOption}};
    start();
    EXPECT_EQ(model->shortcutError(), u"⌃⌥ Space is already used by another app. Pick a different shortcut."_s);
    EXPECT_EQ(model->groupShortcutError(), u"⌃⌥ G is already in use. Pick a different shortcut."_s);
    EXPECT_FALSE(model->historyShortcutError());

    fake.hotKeys.takenByOthers.clear();
    model->armShortcut();
    EXPECT_FALSE(model->shortcutError());
    model->setGroupShortcut(model->shortcut()); // taken by this program itself
    EXPECT_EQ(model->groupShortcutError(), u"⌃⌥ Space is already in use. Pick a different shortcut."_s);
    model->setGroupShortcut(Shortcut::modifier(ModifierKey::Fn)); // no combination
    EXPECT_EQ(model->groupShortcutError(), u"Fn (🌐) is already in use. Pick a different shortcut."_s);
    EXPECT_TRUE(fake.hotKeys.isRegistered(KeyCode::h, controlOption));
}

TEST_F(SettingsTest, TheGroupShortcutCyclesAndNamesTheGroupOnPressOnly)
{
    model->groups().add(u"Work"_s);
    start();
    EXPECT_TRUE(fake.hotKeys.press(KeyCode::g, controlOption));
    fake.hotKeys.release(KeyCode::g, controlOption);
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Group{u"Work"_s}));
    fake.hotKeys.press(KeyCode::g, controlOption);
    EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Group{u"All entries"_s}));
}

TEST_F(SettingsTest, ASingleKeyAsksForTrustOnceWhereItIsMissing)
{
    fake.accessibility.trusted = false;
    model.emplace(fake.platform, *client, consent, views());
    model->setShortcut(Shortcut::combo(96, 0, u"F5"_s));
    EXPECT_EQ(fake.accessibility.prompts, 0);
    model->setShortcut(Shortcut::modifier(ModifierKey::RightOption));
    EXPECT_EQ(fake.accessibility.prompts, 1);
}

TEST_F(SettingsTest, PermissionsAreWatchedEveryTwoSeconds)
{
    start();
    fake.microphone.authorization = Microphone::Authorization::Restricted;
    fake.hotKeys.takenByOthers.insert({KeyCode::space, controlOption});
    fake.accessibility.trusted = false;
    fake.clock.advance(1999ms);
    EXPECT_TRUE(model->isTrusted());
    fake.clock.advance(1ms);
    EXPECT_FALSE(model->isTrusted());
    EXPECT_TRUE(model->shortcutError()); // armed again, and refused this time
    EXPECT_EQ(model->microphone(), AudioRecorder::Permission::Denied);
}

TEST_F(SettingsTest, OpenAtLoginIsWhatTheDesktopSays)
{
    start();
    model->setLaunchesAtLogin(true);
    EXPECT_TRUE(model->launchesAtLogin());
    fake.loginItem.current = LoginItem::Status::NotRegistered; // switched off in the desktop's own settings
    EXPECT_FALSE(model->launchesAtLogin());
    fake.loginItem.refuses = true;
    model->setLaunchesAtLogin(true);
    EXPECT_EQ(phase(), error(u"Couldn't change Open at Login"_s));
    EXPECT_FALSE(model->launchesAtLogin());
}

TEST_F(SettingsTest, DisarmedShortcutsStayOffWhateverChangesUntilTheyAreRearmed)
{
    start();
    model->disarmShortcuts();
    fake.accessibility.trusted = false;
    fake.clock.advance(2s);
    model->setShortcut(Shortcut::combo(96, 0, u"F5"_s));
    model->setGroupShortcut(Shortcut::combo(97, 0, u"F6"_s));
    EXPECT_FALSE(model->isTrusted());
    EXPECT_EQ(fake.hotKeys.count(), 0U);
    model->rearmShortcuts();
    EXPECT_EQ(fake.hotKeys.count(), 3U);
    EXPECT_TRUE(fake.hotKeys.isRegistered(96, 0));
}

TEST_F(SettingsTest, TheHistoryShortcutHidesOnlyWhatTheUserLooksAt)
{
    start();
    const auto toggle = [this] {
        ASSERT_TRUE(fake.hotKeys.press(KeyCode::h, controlOption));
        fake.hotKeys.release(KeyCode::h, controlOption);
    };
    HistoryWindow &history = model->historyWindow();
    toggle();
    EXPECT_TRUE(history.isVisible());
    fake.application.activated(false); // another program comes to the front
    toggle();
    EXPECT_TRUE(history.isVisible());
    toggle();
    EXPECT_FALSE(history.isVisible());
    EXPECT_EQ(fake.application.hides, 1);

    model->settingsWindow().show();
    history.show(false);
    history.hide();
    EXPECT_EQ(fake.application.hides, 1); // the settings are still there
}
