// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioRecorder.h"
#include "platform/Clock.h"
#include "ui/consent/ConsentWindow.h"
#include "ui/settings/PermissionProperties.h"

#include <QCoroTask>

#include <memory>

class AIConsent;
class RecordingHUD;
struct Platform;

/// What the program may do: hear the microphone, watch and post keys, send recordings. Main thread only.
class Permissions : public PermissionProperties {
    Q_OBJECT

public:
    Permissions(const Platform &platform, AudioRecorder &recorder, const AIConsent &consent,
                ConsentWindow &consentWindow, RecordingHUD &hud);

    /// From now on a permission that changes outside the program is noticed within two seconds.
    void watch();

    AudioRecorder::Permission microphone() const { return m_microphone; }
    /// Asks for the microphone; true when the user allows it.
    QCoro::Task<bool> requestMicrophone();

    /// Opens the consent window: to ask, or to look at an answer given before.
    void showConsent(bool isReview);
    /// Whether recordings may be sent. Asks the user where that is not so.
    bool requireConsent();

    bool isMicrophoneGranted() const override { return m_microphone == AudioRecorder::Permission::Granted; }
    bool isTrusted() const override { return m_isTrusted; }
    bool hasConsent() const override { return m_hasConsent; }
    void fixMicrophone() override;
    void fixAccessibility() override;
    void reviewConsent() override { showConsent(true); }

Q_SIGNALS:
    /// Follows `permissionsChanged` when it was trust that came or went.
    void trustChanged();
    void consentGranted();

private:
    void check();
    void setMicrophone(AudioRecorder::Permission permission);
    void consentAnswered(bool isGranted, bool isReview);

    const Platform &m_platform;
    AudioRecorder &m_recorder;
    const AIConsent &m_consent;
    ConsentWindow &m_consentWindow;
    RecordingHUD &m_hud;

    bool m_isTrusted;
    AudioRecorder::Permission m_microphone;
    bool m_hasConsent;
    std::unique_ptr<Clock::Timer> m_trustTimer;
};
