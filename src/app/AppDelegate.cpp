// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "app/AppModel.h"
#include "app/Composition.h"

void AppDelegate::applicationDidFinishLaunching()
{
    // The shortcuts first: they are what the user may be waiting for.
    AppModel &model = m_composition.model();
    model.start();
    m_composition.prepareViews();
    if (const auto &error = model.shortcutError()) {
        model.hud().show(HUDPhase::Message{*error, true}); // a dead shortcut must not be a riddle
    }
}
