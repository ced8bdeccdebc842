// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/GeneralProperties.h"

class LoginItem;
class RecordingHUD;

/// Settings that belong to nothing else. Main thread only.
class GeneralSettings : public GeneralProperties {
    Q_OBJECT

public:
    GeneralSettings(LoginItem &loginItem, RecordingHUD &hud);

    bool launchesAtLogin() const override;
    void setLaunchesAtLogin(bool launches) override;

private:
    LoginItem &m_loginItem;
    RecordingHUD &m_hud;
};
