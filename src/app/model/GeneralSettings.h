// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/GeneralProperties.h"

class LoginItem;
class Preferences;
class RecordingHUD;

/// Settings that belong to nothing else. Main thread only.
class GeneralSettings : public GeneralProperties {
    Q_OBJECT

public:
    GeneralSettings(LoginItem &loginItem, Preferences &preferences, RecordingHUD &hud);

    bool launchesAtLogin() const override;
    void setLaunchesAtLogin(bool launches) override;
    bool keepsUnsent() const override;
    void setKeepsUnsent(bool keeps) override;

private:
    LoginItem &m_loginItem;
    Preferences &m_preferences;
    RecordingHUD &m_hud;
};
