// SPDX-License-Identifier: MIT
#pragma once

#include "service/ApiError.h"
#include "service/ApiRecords.h"
#include "service/HttpTransport.h"
#include "service/Keychain.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

class AIConsent;
class PackagedInfo;
class Preferences;

/// The transcription backend. Registers this device at the first authenticated request and keeps the credential in the
/// keychain. While that is locked the credential serves from memory, and each request but an upload looks again: a
/// device that the keychain knows takes its place, with the tokens bought for it, and else it is kept there. Main
/// thread only; every wait suspends. Operations fail with ApiError, an upload without consent with AIConsentError.
class ApiClient {
public:
    /// No progress for this long fails a request.
    static constexpr std::chrono::milliseconds requestTimeout = std::chrono::seconds(120);

    /// The base URL is read here, once: the preference "apiURL", else the packaged QLOApiURL.
    ApiClient(Preferences &preferences, const PackagedInfo &info, SecretStore &secrets, const AIConsent &consent,
              std::chrono::milliseconds timeout = requestTimeout);

    /// Where the backend is; nothing when no usable address is configured.
    static std::optional<QUrl> baseUrl(const Preferences &preferences, const PackagedInfo &info);

    /// Uploads a recording, once. The file is neither changed nor deleted.
    QCoro::Task<Transcript> transcribe(QString filePath);

    QCoro::Task<Balance> balance();

    /// The page where tokens are bought.
    QCoro::Task<QUrl> checkoutLink();

private:
    struct Call {
        QString path;
        QByteArray method;
        std::optional<QByteArray> body = std::nullopt;
        std::optional<QByteArray> contentType = std::nullopt;
        bool authenticated = true;
        bool isHurried = false; ///< a credential in memory serves, whatever the keychain may know by now
    };

    template <typename Record> QCoro::Task<Record> send(Call call, bool retried = false);
    QCoro::Task<HttpResponse> exchange(Call call);
    QCoro::Task<QString> deviceCredential(bool isHurried);
    QCoro::Task<std::optional<QString>> storedCredential();
    QCoro::Task<void> forgetCredential();

    Preferences &m_preferences;
    const AIConsent &m_consent;
    Keychain m_keychain;
    HttpTransport m_transport;
    std::optional<QUrl> m_baseUrl;
    std::optional<QString> m_credential;
    bool m_isCredentialKept = false; // in the keychain too
};
