// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/IniPreferences.h"
#include "platform/freedesktop/LibsecretStore.h"
#include "platform/freedesktop/ResourceInfo.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "service/AIConsent.h"
#include "service/ApiClient.h"

/// The services that need no display: what the program and its commands have in common, chosen once. Main thread only;
/// a QCoreApplication exists for as long as they live.
struct Services {
    SystemClock clock;
    IniPreferences preferences{IniPreferences::defaultPath()};
    XdgFiles files;
    LibsecretStore secrets;
    ResourceInfo packagedInfo{ResourceInfo::defaultFolder()};
    AIConsent consent{preferences, clock};
    ApiClient client{preferences, packagedInfo, secrets, consent, clock};
};
