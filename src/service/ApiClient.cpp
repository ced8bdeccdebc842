// SPDX-License-Identifier: MIT
#include "service/ApiClient.h"

#include "platform/PackagedInfo.h"
#include "platform/Preferences.h"
#include "service/AIConsent.h"
#include "service/Multipart.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString credentialAccount = u"apiDeviceCredential"_s;

template <typename Record> std::optional<Record> decoded(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    return document.isObject() ? Record::decode(document.object()) : std::nullopt;
}

ApiError failure(const HttpResponse &response)
{
    const ErrorBody body = decoded<ErrorBody>(response.body).value_or(ErrorBody{});
    const ApiError unknown = ApiError::server(response.status);
    return {body.error.value_or(unknown.code()), body.message.value_or(unknown.localizedDescription()),
            response.status};
}

} // namespace

ApiClient::ApiClient(Preferences &preferences, const PackagedInfo &info, SecretStore &secrets, const AIConsent &consent,
                     std::chrono::milliseconds timeout)
    : m_preferences(preferences),
      m_consent(consent),
      m_keychain(secrets),
      m_transport(timeout),
      m_baseUrl(baseUrl(preferences, info))
{
}

std::optional<QUrl> ApiClient::baseUrl(const Preferences &preferences, const PackagedInfo &info)
{
    auto text = preferences.string(u"apiURL"_s);
    if (!text) {
        text = info.string(u"QLOApiURL"_s);
    }
    QStringView trimmed = text ? QStringView(*text) : QStringView();
    while (trimmed.startsWith(u'/')) {
        trimmed = trimmed.sliced(1);
    }
    while (trimmed.endsWith(u'/')) {
        trimmed.chop(1);
    }
    const QUrl url(trimmed.toString(), QUrl::StrictMode);
    return url.isValid() && !url.isEmpty() ? std::optional(url) : std::nullopt;
}

QCoro::Task<Transcript> ApiClient::transcribe(QString filePath)
{
    if (!m_consent.isCurrent()) {
        throw AIConsentError();
    }
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        throw ApiError(u"no_audio"_s, u"Couldn't read the recording."_s, 0);
    }
    const QByteArray recording = file.readAll();
    if (recording.isEmpty()) {
        throw ApiError(u"no_audio"_s, u"Nothing was recorded. Check microphone access."_s, 0);
    }
    const Multipart multipart(QFileInfo(filePath).fileName(), recording);
    Call call{u"/v1/transcribe"_s, "POST", multipart.body(), multipart.contentType()};
    call.isHurried = true; // the user waits for the text
    co_return co_await send<Transcript>(std::move(call));
}

QCoro::Task<Balance> ApiClient::balance()
{
    Call call{u"/v1/balance"_s, "GET"};
    co_return co_await send<Balance>(std::move(call));
}

QCoro::Task<QUrl> ApiClient::checkoutLink()
{
    Call call{u"/v1/checkout/link"_s, "POST"};
    const Link link = co_await send<Link>(std::move(call));
    co_return link.url;
}

template <typename Record> QCoro::Task<Record> ApiClient::send(Call call, bool retried)
{
    const HttpResponse response = co_await exchange(call);
    if (response.status >= 200 && response.status <= 299) {
        const std::optional<Record> record = decoded<Record>(response.body);
        if (!record) {
            throw ApiError::server(response.status);
        }
        co_return *record;
    }
    if (response.status == 401 && call.authenticated && !retried) {
        // The backend no longer knows this device: the second attempt registers it anew.
        co_await forgetCredential();
        co_return co_await send<Record>(std::move(call), true);
    }
    throw failure(response);
}

QCoro::Task<HttpResponse> ApiClient::exchange(Call call)
{
    if (!m_baseUrl) {
        throw ApiError::notConfigured();
    }
    HttpRequest request{call.method, *m_baseUrl, {}, std::move(call.body)};
    request.url.setPath(m_baseUrl->path() + call.path);
    if (call.contentType) {
        request.headers.append({"Content-Type", *call.contentType});
    }
    if (call.authenticated) {
        const QString credential = co_await deviceCredential(call.isHurried);
        request.headers.append({"Authorization", "Bearer " + credential.toUtf8()});
    }
    const std::optional<HttpResponse> response = co_await m_transport.perform(std::move(request));
    if (!response) {
        throw ApiError::network();
    }
    co_return *response;
}

QCoro::Task<QString> ApiClient::deviceCredential(bool isHurried)
{
    if (m_credential && (m_isCredentialKept || isHurried)) {
        co_return QString(*m_credential); // a copy: QCoro moves what it is given, an lvalue that isn't const too
    }
    if (const std::optional<QString> stored = co_await storedCredential()) {
        co_return *stored;
    }
    if (m_credential) {
        const QString credential = *m_credential;
        m_isCredentialKept = co_await m_keychain.write(credentialAccount, credential);
        co_return credential;
    }
    Call call{u"/v1/devices"_s, "POST", QByteArrayLiteral("{\"platform\":\"macos\"}"),
              QByteArrayLiteral("application/json"), false};
    const Registration registration = co_await send<Registration>(std::move(call));
    const QString credential = registration.deviceId + u'.' + registration.secret;
    if (const std::optional<QString> stored = co_await storedCredential()) {
        co_return *stored; // unlocked meanwhile
    }
    const bool isKept = co_await m_keychain.write(credentialAccount, credential);
    m_preferences.setBoolean(u"freeGrantMissed"_s, registration.freeGrantMissed);
    m_credential = credential;
    m_isCredentialKept = isKept;
    co_return credential;
}

QCoro::Task<std::optional<QString>> ApiClient::storedCredential()
{
    const std::optional<QString> stored = co_await m_keychain.read(credentialAccount);
    if (stored) {
        m_credential = stored;
        m_isCredentialKept = true;
    }
    co_return stored;
}

QCoro::Task<void> ApiClient::forgetCredential()
{
    m_credential.reset();
    if (m_isCredentialKept) {
        co_await m_keychain.remove(credentialAccount);
    }
}
