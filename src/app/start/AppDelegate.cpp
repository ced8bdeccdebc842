// SPDX-License-Identifier: MIT
#include "app/start/AppDelegate.h"

#include "app/model/AppModel.h"
#include "app/start/Composition.h"

void AppDelegate::applicationDidFinishLaunching()
{
    Composition::registerFonts();
    // The shortcuts before the views: they are what the user may be waiting for.
    m_composition.model().start();
    m_composition.prepareViews();
}
