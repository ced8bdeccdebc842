// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "service/ApiRecords.h"
#include "service/Keychain.h"

#include <QCoroTask>
#include <QFuture>
#include <QPromise>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

class Preferences;

/// What stands for this device at the backend: the identifier and the secret of its registration, joined by ".". It is
/// kept in the keychain, with a copy in memory. While the keychain is locked or does not answer, a registration in
/// memory serves; once it can be asked, the device with more tokens stays, so that nothing bought is lost. Main thread
/// only.
class DeviceCredential {
public:
    /// How long a dictation waits for the keychain.
    static constexpr Clock::Duration patience = std::chrono::seconds(3);

    /// What only the backend can do.
    struct Backend {
        /// Fails with ApiError.
        std::function<QCoro::Task<Registration>()> registerDevice;
        /// The tokens of the device with that credential: the least number there is for one that the backend doesn't
        /// know, nothing when it can't be asked.
        std::function<QCoro::Task<std::optional<int64_t>>(QString credential)> tokens;
    };

    DeviceCredential(SecretStore &secrets, Preferences &preferences, Clock &clock, Backend backend);

    /// The credential, registered if there is none. In a hurry one in memory serves, whatever the keychain may know by
    /// now, and the keychain is waited for no longer than `patience`. Fails as the registration does.
    QCoro::Task<QString> get(bool isHurried);

    /// The backend has refused it: the next `get` registers anew, unless that has happened meanwhile.
    QCoro::Task<void> forget(QString refused);

    /// The copy in memory, if there is one yet.
    const std::optional<QString> &known() const { return m_credential; }

    /// False while a restart would lose the device.
    bool isKept() const { return m_isKept; }

private:
    QFuture<void> consult();
    QCoro::Task<void> consultKeychain(QPromise<void> done);
    QCoro::Task<void> settle(QString stored);
    QCoro::Task<void> enrol();
    QCoro::Task<void> waitAtMost(QFuture<void> future, Clock::Duration limit);

    Keychain m_keychain;
    Preferences &m_preferences;
    Clock &m_clock;
    Backend m_backend;
    std::optional<QString> m_credential;
    bool m_isKept = false; // in the keychain too
    // One of each at a time; what is under way serves all who ask.
    QFuture<void> m_consultation;
    QFuture<void> m_enrolment;
};
