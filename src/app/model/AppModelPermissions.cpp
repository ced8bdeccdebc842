// SPDX-License-Identifier: MIT
#include "app/model/AppModel.h"

#include "platform/Accessibility.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "service/AIConsent.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto permissionWatchPeriod = 2000ms;

} // namespace

void AppModel::watchPermissions()
{
    m_trustTimer = m_clock.every(permissionWatchPeriod, [this] { checkPermissions(); });
}

void AppModel::checkPermissions()
{
    const AudioRecorder::Permission microphone = m_recorder.permission();
    if (microphone != m_microphone) {
        m_microphone = microphone;
        Q_EMIT permissionsChanged();
    }
    const bool isTrusted = m_platform.accessibility.isTrusted();
    if (isTrusted != m_isTrusted) {
        m_isTrusted = isTrusted;
        armShortcut();
        Q_EMIT permissionsChanged();
    }
}

void AppModel::requestMicrophone()
{
    awaitMicrophone();
}

QCoro::Task<void> AppModel::awaitMicrophone()
{
    co_await m_recorder.requestPermission();
    m_microphone = m_recorder.permission();
    Q_EMIT permissionsChanged();
}

void AppModel::fixMicrophone()
{
    if (m_microphone == AudioRecorder::Permission::Undetermined) {
        requestMicrophone();
    } else {
        openPrivacySettings(Workspace::PrivacyPane::Microphone);
    }
}

void AppModel::fixAccessibility()
{
    m_platform.accessibility.promptForTrust();
    openPrivacySettings(Workspace::PrivacyPane::Accessibility);
}

void AppModel::openPrivacySettings(Workspace::PrivacyPane pane)
{
    if (!m_platform.workspace.openPrivacySettings(pane)) {
        const QString advice = pane == Workspace::PrivacyPane::Microphone
                                   ? u"Allow an input device in the sound settings"_s
                                   : u"Run “quillo doctor” to see what is missing"_s;
        m_hud.show(HUDPhase::Message{advice, true});
    }
}

void AppModel::showConsent(bool isReview)
{
    m_consentWindow.show(isReview, [this, isReview](bool isGranted) { consentAnswered(isGranted, isReview); });
}

void AppModel::consentAnswered(bool isGranted, bool isReview)
{
    const bool hasConsent = m_consent.isCurrent();
    if (hasConsent != m_hasConsent) {
        m_hasConsent = hasConsent;
        Q_EMIT hasConsentChanged();
    }
    if (!isGranted) {
        return;
    }
    refreshBalance();
    if (!isReview && !m_isTrusted) {
        m_platform.accessibility.promptForTrust();
    }
}

bool AppModel::launchesAtLogin() const
{
    return m_platform.loginItem.status() == LoginItem::Status::Enabled;
}

void AppModel::setLaunchesAtLogin(bool launches)
{
    const bool isChanged = launches ? m_platform.loginItem.registerApp() : m_platform.loginItem.unregisterApp();
    Q_EMIT launchesAtLoginChanged();
    if (!isChanged) {
        m_hud.show(HUDPhase::Message{u"Couldn't change Open at Login"_s, true});
    }
}
