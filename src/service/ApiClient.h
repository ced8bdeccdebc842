// SPDX-License-Identifier: MIT
#pragma once

#include "service/ApiError.h"
#include "service/ApiRecords.h"
#include "service/DeviceCredential.h"
#include "service/HttpTransport.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>

class AIConsent;
class PackagedInfo;
class Preferences;

/// The transcription backend. Registers this device at the first authenticated request. Main thread only; every wait
/// suspends. Operations fail with ApiError, an upload without consent with AIConsentError.
class ApiClient {
public:
    /// No progress for this long fails a request.
    static constexpr std::chrono::milliseconds requestTimeout = std::chrono::seconds(120);

    /// The base URL is read here, once: the preference "apiURL", else the packaged QLOApiURL.
    ApiClient(Preferences &preferences, const PackagedInfo &info, SecretStore &secrets, const AIConsent &consent,
              Clock &clock, std::chrono::milliseconds timeout = requestTimeout);
    ApiClient(const ApiClient &) = delete;
    ApiClient &operator=(const ApiClient &) = delete;

    /// Where the backend is; nothing when no usable address is configured.
    static std::optional<QUrl> baseUrl(const Preferences &preferences, const PackagedInfo &info);

    /// `path` begins with "/"; what is percent-encoded in the base stays so.
    static QUrl endpoint(const QUrl &base, const QString &path);

    /// Uploads a recording, once. The file is neither changed nor deleted.
    QCoro::Task<Transcript> transcribe(QString filePath);

    QCoro::Task<Balance> balance();

    /// Sees to it that an upload that comes soon finds an open connection: asks for the balance, for the sake of the
    /// exchange alone. Does nothing where one has just been made, without consent, and before the credential is known.
    void prepareConnection();

    /// The page where tokens are bought, for a person who asked for it: a locked keychain has the desktop ask for its
    /// password. An error as long as the device they are for would be lost with this process.
    QCoro::Task<QUrl> checkoutLink();

private:
    struct Call {
        QString path;
        QByteArray method;
        std::optional<QByteArray> body = std::nullopt;
        std::optional<QByteArray> contentType = std::nullopt;
        bool authenticated = true;
        bool isHurried = false; ///< somebody waits: the keychain is not waited for long
    };

    template <typename Record> QCoro::Task<Record> send(Call call, bool retried = false);
    QCoro::Task<HttpResponse> exchange(Call call, std::optional<QString> credential);
    QCoro::Task<Registration> registerDevice();
    QCoro::Task<void> warmConnection();
    QCoro::Task<std::optional<int64_t>> tokens(QString credential);

    Clock &m_clock;
    SecretStore &m_secrets;
    const AIConsent &m_consent;
    HttpTransport m_transport;
    Clock::Instant m_lastExchange;
    std::optional<QUrl> m_baseUrl;
    DeviceCredential m_device;
    std::shared_ptr<const bool> m_lifetime = std::make_shared<const bool>(true); ///< expires with the client
};
