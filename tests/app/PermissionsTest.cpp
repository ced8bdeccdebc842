// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Authorization = Microphone::Authorization;

class PermissionsTest : public AppModelFixture {};

} // namespace

TEST_F(PermissionsTest, TrustThatComesLaterArmsTheShortcut)
{
    fake.accessibility.trusted = false;
    fake.hotKeys.takenByOthers.insert({KeyCode::space, controlOption});
    model.emplace(fake.platform, *client, consent, views());
    start();
    EXPECT_FALSE(model->isTrusted());
    EXPECT_TRUE(model->shortcutError());

    fake.hotKeys.takenByOthers.clear();
    fake.clock.advance(2s); // by itself the watch leaves the shortcut alone
    EXPECT_TRUE(model->shortcutError());
    fake.accessibility.trusted = true;
    fake.clock.advance(2s);
    EXPECT_TRUE(model->isTrusted());
    EXPECT_FALSE(model->shortcutError());
    press();
    EXPECT_EQ(model->state().value, Case::Recording);
}

TEST_F(PermissionsTest, WhereTheDesktopHasNoSettingsPageTheHudSaysWhatToDo)
{
    fake.microphone.authorization = Authorization::Denied;
    model.emplace(fake.platform, *client, consent, views());
    start();
    for (const bool hasPage : {true, false}) {
        fake.workspace.hasPrivacySettings = hasPage;
        model->fixMicrophone();
        EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Microphone);
        EXPECT_EQ(panel.isVisible, !hasPage);
    }
    EXPECT_EQ(phase(), error(u"Allow an input device in the sound settings"_s));
    model->fixAccessibility();
    EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Accessibility);
    EXPECT_EQ(phase(), error(u"Run “quillo doctor” to see what is missing"_s));
}
