// SPDX-License-Identifier: MIT
#include "app/model/GeneralSettings.h"

#include "app/model/UnsentRecordings.h"
#include "platform/LoginItem.h"
#include "platform/Preferences.h"
#include "ui/hud/RecordingHUD.h"

#include <QGuiApplication>
#include <QWindow>

using namespace Qt::StringLiterals;

GeneralSettings::GeneralSettings(LoginItem &loginItem, Preferences &preferences, RecordingHUD &hud)
    : m_loginItem(loginItem), m_preferences(preferences), m_hud(hud)
{
    // The desktop has a switch of its own for it, which may have been used since a window of ours was last in front.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &GeneralSettings::launchesAtLoginChanged);
}

bool GeneralSettings::launchesAtLogin() const
{
    return m_loginItem.status() == LoginItem::Status::Enabled;
}

void GeneralSettings::setLaunchesAtLogin(bool launches)
{
    Q_EMIT launchesAtLoginChanged(); // before, for those who want to know that it will change
    const bool isChanged = launches ? m_loginItem.registerApp() : m_loginItem.unregisterApp();
    Q_EMIT launchesAtLoginChanged();
    if (!isChanged) {
        m_hud.notify(HUDPhase::Message{tr("Couldn't change Open at Login"), true});
    }
}

bool GeneralSettings::keepsUnsent() const
{
    return m_preferences.boolean(UnsentRecordings::preference());
}

void GeneralSettings::setKeepsUnsent(bool keeps)
{
    if (keepsUnsent() != keeps) {
        m_preferences.setBoolean(UnsentRecordings::preference(), keeps);
        Q_EMIT keepsUnsentChanged();
    }
}
