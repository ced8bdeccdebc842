// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include "ui/settings/SettingsModel.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const Shortcut f5 = Shortcut::combo(96, 0, u"F5"_s);
const Shortcut f6 = Shortcut::combo(97, 0, u"F6"_s);

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

TEST_F(SettingsTest, ChangesTakeEffectAndAreStored)
{
    start();
    model->setShortcut(Shortcut::modifier(ModifierKey::RightOption));
    model->setGroupShortcut(f5);
    model->setHistoryShortcut(f6);
    model->setTriggerMode(TriggerMode::Toggle);
    EXPECT_EQ(fake.keyMonitors.global.size(), 1U);
    EXPECT_FALSE(fake.hotKeys.isRegistered(KeyCode::space, controlOption));
    EXPECT_TRUE(fake.hotKeys.isRegistered(96, 0));
    EXPECT_FALSE(fake.hotKeys.isRegistered(KeyCode::g, controlOption));
    EXPECT_EQ(fake.preferences.data(u"shortcut.v2"_s), Shortcut::modifier(ModifierKey::RightOption).toJson());
    EXPECT_EQ(fake.preferences.data(u"groupShortcut"_s), f5.toJson());
    EXPECT_EQ(fake.preferences.data(u"historyShortcut"_s), f6.toJson());
    EXPECT_EQ(fake.preferences.string(u"triggerMode"_s), u"toggle"_s);

    make();
    EXPECT_EQ(model->shortcut(), Shortcut::modifier(ModifierKey::RightOption));
    EXPECT_EQ(model->groupShortcut(), f5);
    EXPECT_EQ(model->historyShortcut(), f6);
    EXPECT_EQ(model->triggerMode(), TriggerMode::Toggle);
}

TEST_F(SettingsTest, PreferencesThatMeanNothingGiveTheDefaults)
{
    fake.preferences.setData(u"shortcut.v2"_s, "{\"combo\":{}}");
    fake.preferences.setString(u"groupShortcut"_s, u"F5"_s);
    fake.preferences.setString(u"triggerMode"_s, u"Hold"_s);
    make();
    EXPECT_EQ(model->shortcut().label(), u"⌃⌥ Space"_s);
    EXPECT_EQ(model->groupShortcut().label(), u"⌃⌥ G"_s);
    EXPECT_EQ(model->historyShortcut().label(), u"⌃⌥ H"_s);
    EXPECT_EQ(model->triggerMode(), TriggerMode::Both);
}

TEST_F(SettingsTest, TheChoicesAreWhatTheirLabelsSay)
{
    SettingsModel settings(
        model->shortcuts(), model->store(), model->groups(), [] {}, fake.packagedInfo, fake.keyMonitors);
    fake.keyMonitors.unseen = KeyCode::fn;
    int announced = 0;
    QObject::connect(&settings, &SettingsModel::shortcutsChanged, [&] { ++announced; });
    EXPECT_EQ(settings.singleKey(), -1);
    const QStringList keys = SettingsModel::singleKeyLabels();
    EXPECT_EQ(keys, (QStringList{u"Right ⌥ Option"_s, u"Right ⌘ Command"_s, u"Right ⌃ Control"_s, u"Fn (🌐)"_s}));
    for (int place = 0; place < keys.size(); ++place) {
        settings.setSingleKey(place);
        EXPECT_EQ(model->shortcut().label(), keys.at(place));
        EXPECT_EQ(settings.singleKey(), place);
        EXPECT_EQ(settings.isFnKey(), place == 3);
        EXPECT_EQ(settings.isKeyUnseen(), place == 3);
    }
    settings.setSingleKey(-1);
    EXPECT_EQ(model->shortcut().label(), u"⌃⌥ Space"_s);
    const QStringList modes = SettingsModel::triggerModeLabels();
    for (const auto &[label, mode] : {std::pair{u"Hold to talk, or tap for hands-free"_s, TriggerMode::Both},
                                      {u"Hold to talk only"_s, TriggerMode::Hold},
                                      {u"Tap to start and stop"_s, TriggerMode::Toggle}}) {
        settings.setTriggerMode(int(modes.indexOf(label)));
        EXPECT_EQ(model->triggerMode(), mode);
        EXPECT_EQ(settings.triggerMode(), modes.indexOf(label));
    }
    settings.setTriggerMode(3); // none
    EXPECT_EQ(model->triggerMode(), TriggerMode::Toggle);
    EXPECT_EQ(announced, 7); // not for the mode that was set already
}

TEST_F(SettingsTest, EveryChangeIsAnnouncedAndNothingElseIs)
{
    using Signal = void (AppModel::*)();
    struct Row {
        const char *name;
        Signal signal;
        std::function<void()> change;
    };
    const Row table[]{
        {"shortcut", &AppModel::shortcutsChanged, [&] { model->setShortcut(f5); }},
        {"status of the shortcut", &AppModel::statusTextChanged, [&] { model->setShortcut(f6); }},
        {"group shortcut", &AppModel::shortcutsChanged, [&] { model->setGroupShortcut(f5); }},
        {"history shortcut", &AppModel::shortcutsChanged, [&] { model->setHistoryShortcut(f5); }},
        {"mode", &AppModel::shortcutsChanged, [&] { model->setTriggerMode(TriggerMode::Hold); }},
        {"status of the mode", &AppModel::statusTextChanged, [&] { model->setTriggerMode(TriggerMode::Toggle); }},
        {"error", &AppModel::shortcutErrorsChanged,
         [&] {
             fake.hotKeys.takenByOthers = {{97, 0}};
             model->armShortcut();
         }},
        {"errors of the windows' shortcuts", &AppModel::shortcutErrorsChanged,
         [&] {
             fake.hotKeys.takenByOthers = {{96, 0}};
             model->armWindowShortcuts();
         }},
        {"trust", &AppModel::permissionsChanged,
         [&] {
             fake.accessibility.trusted = false;
             fake.clock.advance(2s);
         }},
        {"microphone", &AppModel::permissionsChanged,
         [&] {
             fake.microphone.authorization = Microphone::Authorization::NotDetermined;
             fake.clock.advance(2s);
         }},
        {"microphone asked for", &AppModel::permissionsChanged, [&] { model->permissions().fixMicrophone(); }},
        {"consent", &AppModel::hasConsentChanged,
         [&] {
             consent.withdraw();
             model->showConsent(true);
             disclosure->keep(false);
         }},
    };
    start();
    for (const Row &row : table) {
        int announced = 0;
        const auto connection = QObject::connect(&*model, row.signal, [&] { ++announced; });
        row.change();
        EXPECT_EQ(announced, 1) << row.name;
        row.change();
        EXPECT_EQ(announced, 1) << row.name << ", which stays as it is";
        QObject::disconnect(connection);
    }
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
    model->setGroupShortcut(Shortcut::modifier(ModifierKey::Fn)); // no combination
    EXPECT_EQ(model->groupShortcutError(), u"Fn (🌐) is already in use. Pick a different shortcut."_s);
    EXPECT_TRUE(fake.hotKeys.isRegistered(KeyCode::h, controlOption));

    fake.hotKeys.lose({{KeyCode::h, controlOption}}); // after a change of the layout
    EXPECT_TRUE(model->historyShortcutError());
    EXPECT_FALSE(model->shortcutError());
}

TEST_F(SettingsTest, WhatOneOfThemGivesUpIsThereForTheOthers)
{
    start();
    const Shortcut dictation = model->shortcut();
    model->setGroupShortcut(dictation);
    EXPECT_TRUE(model->groupShortcutError());
    model->setShortcut(f5);
    EXPECT_FALSE(model->groupShortcutError());
    model->setShortcut(dictation); // the group has it now, and keeps it
    EXPECT_TRUE(model->shortcutError());
    EXPECT_FALSE(model->groupShortcutError());
    model->setGroupShortcut(f5);
    EXPECT_FALSE(model->shortcutError());
}

TEST_F(SettingsTest, DisarmedShortcutsStayOffWhateverChangesAndTheDictationsComesBackFirst)
{
    start();
    model->shortcuts().disarm();
    fake.accessibility.trusted = false;
    fake.clock.advance(2s);
    model->setGroupShortcut(f5);
    model->setShortcut(f5);
    EXPECT_EQ(fake.hotKeys.count(), 0U);
    model->shortcuts().rearm();
    EXPECT_EQ(fake.hotKeys.count(), 2U);
    EXPECT_FALSE(model->shortcutError());
    EXPECT_EQ(model->groupShortcutError(), u"F5 is already in use. Pick a different shortcut."_s);
}

TEST_F(SettingsTest, TheGroupShortcutCyclesAndNamesTheGroupOnPressOnly)
{
    model->groups().add(u"Work"_s);
    start();
    for (const QString &name : {u"Work"_s, u"All entries"_s}) {
        EXPECT_TRUE(fake.hotKeys.press(KeyCode::g, controlOption));
        fake.hotKeys.release(KeyCode::g, controlOption);
        EXPECT_EQ(phase(), HUDModel::Phase(HUDPhase::Group{name}));
    }
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

TEST_F(SettingsTest, TrustThatComesLaterArmsTheShortcutWithinTwoSeconds)
{
    fake.accessibility.trusted = false;
    fake.hotKeys.takenByOthers = {{KeyCode::space, controlOption}};
    make();
    start();
    EXPECT_TRUE(model->shortcutError());
    fake.hotKeys.takenByOthers.clear();
    fake.clock.advance(2s); // by itself the watch leaves the shortcut alone
    EXPECT_TRUE(model->shortcutError());
    fake.accessibility.trusted = true;
    fake.clock.advance(1999ms);
    EXPECT_FALSE(model->isTrusted());
    fake.clock.advance(1ms);
    EXPECT_TRUE(model->isTrusted());
    EXPECT_FALSE(model->shortcutError());
}

TEST_F(SettingsTest, ASingleKeyAsksForTrustWhereItIsMissing)
{
    for (const bool isTrusted : {true, false}) {
        fake.accessibility.trusted = isTrusted;
        make();
        model->setShortcut(f5);
        EXPECT_EQ(fake.accessibility.prompts, 0);
        model->setShortcut(Shortcut::modifier(ModifierKey::RightOption));
        EXPECT_EQ(fake.accessibility.prompts, isTrusted ? 0 : 1);
    }
}

TEST_F(SettingsTest, WhereTheDesktopHasNoSettingsPageTheHudSaysWhatToDo)
{
    fake.microphone.authorization = Microphone::Authorization::Restricted;
    make();
    start();
    EXPECT_EQ(model->microphone(), AudioRecorder::Permission::Denied);
    for (const bool hasPage : {true, false}) {
        fake.workspace.hasPrivacySettings = hasPage;
        model->permissions().fixMicrophone();
        EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Microphone);
        EXPECT_EQ(panel.isVisible, !hasPage);
    }
    EXPECT_EQ(phase(), error(u"Allow an input device in the sound settings"_s));
    model->permissions().fixAccessibility();
    EXPECT_EQ(fake.accessibility.prompts, 1);
    EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Accessibility);
    EXPECT_EQ(phase(), error(u"Run “quillo doctor” to see what is missing"_s));
}

TEST_F(SettingsTest, OpenAtLoginIsWhatTheDesktopSays)
{
    start();
    QList<bool> announced; // before the change, and when it has been made
    QObject::connect(&*model, &AppModel::launchesAtLoginChanged, [&] { announced.append(model->launchesAtLogin()); });
    model->setLaunchesAtLogin(true);
    EXPECT_EQ(announced, (QList<bool>{false, true}));
    fake.loginItem.current = LoginItem::Status::NotRegistered; // switched off in the desktop's own settings
    EXPECT_FALSE(model->launchesAtLogin());
    fake.loginItem.refuses = true;
    model->setLaunchesAtLogin(true);
    EXPECT_EQ(phase(), error(u"Couldn't change Open at Login"_s));
    EXPECT_FALSE(model->launchesAtLogin());
}
