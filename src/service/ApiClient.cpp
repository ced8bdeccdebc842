// SPDX-License-Identifier: MIT
#include "service/ApiClient.h"

#include "platform/PackagedInfo.h"
#include "platform/Preferences.h"
#include "service/AIConsent.h"
#include "service/Multipart.h"

#include <QCoroFuture>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtConcurrentRun>

#include <coroutine>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int unauthorized = 401;

template <typename Record> std::optional<Record> decoded(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    return document.isObject() ? Record::decode(document.object()) : std::nullopt;
}

/// Nothing when the file can't be read to its end.
std::optional<QByteArray> content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

ApiError failure(const HttpResponse &response)
{
    const ErrorBody body = decoded<ErrorBody>(response.body).value_or(ErrorBody{});
    const ApiError unknown = ApiError::server(response.status);
    return {body.error.value_or(unknown.code()), body.message.value_or(unknown.localizedDescription()),
            response.status};
}

// A connection used this recently is open still, and will be when the dictation ends that begins now.
constexpr Clock::Duration freshness = std::chrono::seconds(4);

} // namespace

ApiClient::ApiClient(Preferences &preferences, const PackagedInfo &info, SecretStore &secrets, const AIConsent &consent,
                     Clock &clock, std::chrono::milliseconds timeout)
    : m_clock(clock),
      m_secrets(secrets),
      m_consent(consent),
      m_transport(timeout),
      m_baseUrl(baseUrl(preferences, info)),
      m_device(secrets, preferences, clock,
               {.registerDevice = [this] { return registerDevice(); },
                .tokens = [this](QString credential) { return tokens(std::move(credential)); }})
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

QUrl ApiClient::endpoint(const QUrl &base, const QString &path)
{
    QUrl url = base;
    url.setPath(base.path(QUrl::FullyEncoded) + path, QUrl::TolerantMode);
    return url;
}

QCoro::Task<Transcript> ApiClient::transcribe(QString filePath)
{
    if (!m_consent.isCurrent()) {
        throw AIConsentError();
    }
    const QFuture<std::optional<QByteArray>> reading = QtConcurrent::run(content, filePath);
    const std::weak_ptr<const bool> lifetime = m_lifetime;
    const std::optional<QByteArray> recording = co_await reading;
    if (lifetime.expired()) {
        co_await std::suspend_always{}; // the client has gone meanwhile, and with it whoever waits for the text
    }
    if (!recording) {
        throw ApiError(u"no_audio"_s, ApiError::tr("Couldn't read the recording."), 0);
    }
    if (recording->isEmpty()) {
        throw ApiError(u"no_audio"_s, ApiError::tr("Nothing was recorded. Check microphone access."), 0);
    }
    const Multipart multipart(QFileInfo(filePath).fileName(), *recording);
    Call call{u"/v1/transcribe"_s, "POST", multipart.body(), multipart.contentType()};
    call.isHurried = true; // the user waits for the text
    co_return co_await send<Transcript>(std::move(call));
}

QCoro::Task<Balance> ApiClient::balance()
{
    Call call{u"/v1/balance"_s, "GET"};
    co_return co_await send<Balance>(std::move(call));
}

void ApiClient::prepareConnection()
{
    const bool isOpen = m_clock.now() - m_lastExchange < freshness;
    if (m_consent.isCurrent() && m_device.known() && !isOpen) {
        warmConnection();
    }
}

QCoro::Task<void> ApiClient::warmConnection()
{
    Call call{u"/v1/balance"_s, "GET"};
    try {
        co_await exchange(std::move(call), m_device.known());
    } catch (const LocalizedError &) {
        co_return; // the upload will find out for itself
    }
}

QCoro::Task<QUrl> ApiClient::checkoutLink()
{
    if (m_baseUrl) {
        co_await m_device.get(false);
        if (!m_device.isKept() && co_await m_secrets.unlock()) {
            co_await m_device.get(false);
        }
        if (!m_device.isKept()) {
            throw ApiError(u"keyring_locked"_s, ApiError::tr("Unlock the keyring first"), 0);
        }
    }
    Call call{u"/v1/checkout/link"_s, "POST"};
    const Link link = co_await send<Link>(std::move(call));
    co_return link.url;
}

template <typename Record> QCoro::Task<Record> ApiClient::send(Call call, bool retried)
{
    if (!m_baseUrl) {
        throw ApiError::notConfigured();
    }
    std::optional<QString> credential;
    if (call.authenticated) {
        credential = co_await m_device.get(call.isHurried);
    }
    const HttpResponse response = co_await exchange(call, credential);
    if (response.status >= 200 && response.status <= 299) {
        const std::optional<Record> record = decoded<Record>(response.body);
        if (!record) {
            throw ApiError::server(response.status);
        }
        co_return *record;
    }
    if (response.status == unauthorized && credential && !retried) {
        // The backend no longer knows this device: the second attempt registers it anew.
        co_await m_device.forget(*credential);
        co_return co_await send<Record>(std::move(call), true);
    }
    throw failure(response);
}

QCoro::Task<HttpResponse> ApiClient::exchange(Call call, std::optional<QString> credential)
{
    HttpRequest request{call.method, endpoint(*m_baseUrl, call.path), {}, std::move(call.body)};
    if (call.contentType) {
        request.headers.append({"Content-Type", *call.contentType});
    }
    if (credential) {
        request.headers.append({"Authorization", "Bearer " + credential->toUtf8()});
    }
    const std::optional<HttpResponse> response = co_await m_transport.perform(std::move(request));
    if (!response) {
        throw ApiError::network();
    }
    m_lastExchange = m_clock.now();
    co_return *response;
}

QCoro::Task<Registration> ApiClient::registerDevice()
{
    Call call{u"/v1/devices"_s, "POST", QByteArrayLiteral("{\"platform\":\"macos\"}"),
              QByteArrayLiteral("application/json"), false};
    co_return co_await send<Registration>(std::move(call));
}

QCoro::Task<std::optional<int64_t>> ApiClient::tokens(QString credential)
{
    try {
        Call call{u"/v1/balance"_s, "GET"};
        const HttpResponse response = co_await exchange(std::move(call), credential);
        if (response.status == unauthorized) {
            co_return std::numeric_limits<int64_t>::min();
        }
        const auto balance = decoded<Balance>(response.body);
        co_return balance ? std::optional(balance->balance) : std::nullopt;
    } catch (const ApiError &) {
        co_return std::nullopt;
    }
}
