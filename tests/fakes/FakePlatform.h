// SPDX-License-Identifier: MIT
#pragma once

#include "FakeClock.h"
#include "FakeDesktop.h"
#include "FakeFiles.h"
#include "FakeHotKeys.h"
#include "FakeKeyEvents.h"
#include "FakeKeyMonitors.h"
#include "FakeMicrophone.h"
#include "FakePasteboard.h"
#include "FakePreferences.h"
#include "FakeSecretStore.h"

#include "platform/Platform.h"

/// A whole desktop of fakes, with a program in front that takes what is pasted.
struct FakePlatform {
    FakePlatform()
    {
        keyEvents.isHotKeyHeld = [this] { return hotKeys.isHeld(); };
        keyEvents.onPaste = [this] { pasted.append(pasteboard.read()); };
    }

    FakeAccessibility accessibility;
    FakeApplication application;
    FakeClock clock;
    FakeFiles files;
    FakeHotKeys hotKeys;
    FakeKeyEvents keyEvents;
    FakeKeyMonitors keyMonitors;
    FakeLoginItem loginItem;
    FakeMicrophone microphone;
    FakePackagedInfo packagedInfo;
    FakePasteboard pasteboard;
    FakePreferences preferences;
    FakeScreens screens;
    FakeSecretStore secrets;
    FakeStatusItem statusItem;
    FakeStatusPanels statusPanels;
    FakeWorkspace workspace;
    QStringList pasted;

    Platform platform{accessibility, application, clock,      files,        hotKeys,    keyEvents,
                      keyMonitors,   loginItem,   microphone, packagedInfo, pasteboard, preferences,
                      screens,       secrets,     statusItem, statusPanels, workspace};
};
