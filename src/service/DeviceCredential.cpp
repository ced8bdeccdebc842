// SPDX-License-Identifier: MIT
#include "service/DeviceCredential.h"

#include "platform/Preferences.h"

#include <QCoroFuture>
#include <QFutureWatcher>
#include <QLoggingCategory>
#include <QScopeGuard>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString account = u"apiDeviceCredential"_s;

} // namespace

DeviceCredential::DeviceCredential(SecretStore &secrets, Preferences &preferences, Clock &clock, Backend backend)
    : m_keychain(secrets), m_preferences(preferences), m_clock(clock), m_backend(std::move(backend))
{
}

QCoro::Task<QString> DeviceCredential::get(bool isHurried)
{
    if (m_credential && (m_isKept || isHurried)) {
        co_return QString(*m_credential); // a copy: QCoro moves what it is given, an lvalue that isn't const too
    }
    if (isHurried || m_credential) {
        co_await waitAtMost(consult(), patience);
    } else {
        co_await consult();
    }
    if (!m_credential) {
        co_await enrol();
        const QFuture<void> keeping = consult();
        if (!isHurried) {
            co_await waitAtMost(keeping, patience);
        }
    }
    co_return QString(*m_credential);
}

QCoro::Task<void> DeviceCredential::forget(QString refused)
{
    if (m_credential != refused) {
        co_return; // refused to two requests at once: the other one has seen to it
    }
    m_credential.reset();
    if (std::exchange(m_isKept, false)) {
        QPromise<void> done;
        done.start();
        m_consultation = done.future(); // who looks into the keychain waits until it is gone
        co_await m_keychain.remove(account);
        done.finish();
    }
}

QFuture<void> DeviceCredential::consult()
{
    if (m_consultation.isFinished()) {
        QPromise<void> done;
        done.start();
        m_consultation = done.future();
        consultKeychain(std::move(done));
    }
    return m_consultation;
}

QCoro::Task<void> DeviceCredential::consultKeychain(QPromise<void> done)
{
    const std::optional<QString> stored = co_await m_keychain.read(account);
    if (stored && m_credential && stored != m_credential) {
        co_await settle(*stored);
    } else if (stored) {
        m_credential = stored;
        m_isKept = true;
    } else if (m_credential) {
        const QString credential = *m_credential;
        const bool isWritten = co_await m_keychain.write(account, credential);
        m_isKept = isWritten && m_credential == credential;
    }
    done.finish();
}

/// Two devices, one known to the keychain and one registered while it was out of reach.
QCoro::Task<void> DeviceCredential::settle(QString stored)
{
    const QString own = *m_credential;
    const std::optional<int64_t> ownTokens = co_await m_backend.tokens(own);
    const std::optional<int64_t> storedTokens = co_await m_backend.tokens(stored);
    if (!ownTokens || !storedTokens || m_credential != own) {
        co_return; // another time
    }
    const bool isOwnRicher = *ownTokens > *storedTokens;
    if (isOwnRicher) {
        m_isKept = co_await m_keychain.write(account, own);
    } else {
        m_credential = stored;
        m_isKept = true;
    }
    // The identifier alone, by which an operator can find the device; never the secret.
    qInfo("The device %s is given up for one with as many tokens or more.",
          qUtf8Printable((isOwnRicher ? stored : own).section(u'.', 0, 0)));
}

QCoro::Task<void> DeviceCredential::enrol()
{
    while (!m_enrolment.isFinished()) {
        const QFuture<void> other = m_enrolment;
        co_await other;
    }
    if (m_credential) {
        co_return;
    }
    QPromise<void> done;
    done.start();
    m_enrolment = done.future();
    const auto finish = qScopeGuard([&done] { done.finish(); });
    const Registration registration = co_await m_backend.registerDevice();
    m_preferences.setBoolean(u"freeGrantMissed"_s, registration.freeGrantMissed);
    m_credential = registration.deviceId + u'.' + registration.secret;
    m_isKept = false;
}

QCoro::Task<void> DeviceCredential::waitAtMost(QFuture<void> future, Clock::Duration limit)
{
    if (future.isFinished()) {
        co_return;
    }
    const auto end = std::make_shared<QPromise<void>>();
    end->start();
    const auto timer = m_clock.after(limit, [end] { end->finish(); });
    QFutureWatcher<void> watcher;
    QObject::connect(&watcher, &QFutureWatcher<void>::finished, &watcher, [end] { end->finish(); });
    watcher.setFuture(future);
    const QFuture<void> ended = end->future();
    co_await ended;
}
