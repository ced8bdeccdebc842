// SPDX-License-Identifier: MIT
#include "app/model/Permissions.h"

#include "platform/Accessibility.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "service/AIConsent.h"
#include "ui/hud/RecordingHUD.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto watchPeriod = 2000ms;

} // namespace

Permissions::Permissions(const Platform &platform, AudioRecorder &recorder, const AIConsent &consent,
                         ConsentWindow &consentWindow, RecordingHUD &hud)
    : m_platform(platform),
      m_recorder(recorder),
      m_consent(consent),
      m_consentWindow(consentWindow),
      m_hud(hud),
      m_isTrusted(platform.accessibility.isTrusted()),
      m_microphone(recorder.permission()),
      m_hasConsent(consent.isCurrent())
{
}

void Permissions::watch()
{
    m_trustTimer = m_platform.clock.every(watchPeriod, [this] { check(); });
}

void Permissions::check()
{
    setMicrophone(m_recorder.permission());
    const bool isTrusted = m_platform.accessibility.isTrusted();
    if (isTrusted != m_isTrusted) {
        m_isTrusted = isTrusted;
        Q_EMIT permissionsChanged();
        Q_EMIT trustChanged();
    }
}

void Permissions::setMicrophone(AudioRecorder::Permission permission)
{
    if (m_microphone != permission) {
        m_microphone = permission;
        Q_EMIT permissionsChanged();
    }
}

QCoro::Task<bool> Permissions::requestMicrophone()
{
    const bool isGranted = co_await m_recorder.requestPermission();
    setMicrophone(m_recorder.permission());
    co_return isGranted;
}

void Permissions::fixMicrophone()
{
    if (m_microphone == AudioRecorder::Permission::Undetermined) {
        requestMicrophone();
    } else if (!m_platform.workspace.openPrivacySettings(Workspace::PrivacyPane::Microphone)) {
        m_hud.notify(HUDPhase::Message{tr("Allow an input device in the sound settings"), true});
    }
}

void Permissions::fixAccessibility()
{
    m_platform.accessibility.promptForTrust();
    if (!m_platform.workspace.openPrivacySettings(Workspace::PrivacyPane::Accessibility)) {
        m_hud.notify(HUDPhase::Message{tr("Run “quillo doctor” to see what is missing"), true});
    }
}

void Permissions::showConsent(bool isReview)
{
    m_consentWindow.show(isReview, [this, isReview](bool isGranted) { consentAnswered(isGranted, isReview); });
}

bool Permissions::requireConsent()
{
    if (!m_consent.isCurrent()) {
        showConsent(false);
        return false;
    }
    return true;
}

void Permissions::consentAnswered(bool isGranted, bool isReview)
{
    const bool hasConsent = m_consent.isCurrent();
    if (hasConsent != m_hasConsent) {
        m_hasConsent = hasConsent;
        Q_EMIT hasConsentChanged();
    }
    if (!isGranted) {
        return;
    }
    Q_EMIT consentGranted();
    if (!isReview && !m_isTrusted) {
        m_platform.accessibility.promptForTrust();
    }
}
