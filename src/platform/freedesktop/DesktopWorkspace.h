// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

/// Links by the desktop's default programs; settings pages of the desktops that have them.
class DesktopWorkspace : public Workspace {
public:
    bool open(const QUrl &url) override;
    bool openPrivacySettings(PrivacyPane pane) override;
};
