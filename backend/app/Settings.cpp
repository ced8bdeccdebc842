// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostTokens = 1'000'000'000'000;
// What waits longer than Quillo does, two minutes, is better refused at once. The embedded engine takes some ten
// seconds for a dictation, one after the other; a transcription server takes many at a time.
constexpr int embeddedQueue = 8;
constexpr int serverQueue = 256;

/// Returns the value that `choices` gives to the option's text.
template <class T> T choice(const Options &options, const QString &name, const QList<std::pair<QString, T>> &choices)
{
    QStringList names;
    for (const auto &[word, value] : choices) {
        if (word == options[name]) {
            return value;
        }
        names.append(word);
    }
    options.fail(name, u"must be "_s + names.join(u" or "_s));
}

net::ip::address addressOf(const Options &options, const QString &name, const QString &text)
{
    boost::system::error_code error;
    auto address = net::ip::make_address(text.toStdString(), error);
    if (error) {
        options.fail(name, u"must be an IP address"_s);
    }
    return address;
}

/// An address and a port, such as "[::1]:8792".
net::ip::tcp::endpoint endpointOf(const Options &options, const QString &name)
{
    const QUrl url(u"tcp://"_s + options[name], QUrl::StrictMode);
    boost::system::error_code error;
    const auto address = net::ip::make_address(url.host().toStdString(), error);
    if (error || url.port() < 0 || !url.path().isEmpty()) {
        options.fail(name, u"must be an IP address and a port, such as 127.0.0.1:8792"_s);
    }
    return {address, static_cast<uint16_t>(url.port())};
}

QString database(const Options &options)
{
    const auto location = options[u"database"_s];
    const auto secret = QString::fromStdString(options.secret(u"database-file"_s, u"database"_s));
    if (!location.isEmpty() && !secret.isEmpty()) {
        options.fail(u"database"_s, u"must not be set beside database-file or the credential \"database\""_s);
    }
    if (location.isEmpty() && secret.isEmpty()) {
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/quillo-backend/backend.db"_s;
    }
    QString found = location + secret;
    if (found.contains(u"://"_s) && !Database::isPostgreSql(found)) {
        options.fail(u"database"_s, u"must be a file or a postgresql:// URI"_s);
    }
    return found;
}

/// Fails when a key would be sent to another machine in the clear.
void requireSecrecy(const Options &options, const QString &name, const std::string &baseUrl, const std::string &key)
{
    const QUrl url(QString::fromStdString(baseUrl));
    const auto isLocal = url.host() == u"localhost"_s || url.host() == u"127.0.0.1"_s || url.host() == u"::1"_s;
    if (!key.empty() && url.scheme() != u"https"_s && !isLocal) {
        options.fail(name, u"must begin with https:// so that the key stays secret"_s);
    }
}

OpenAiOptions openAi(const Options &options)
{
    OpenAiOptions openAi;
    openAi.baseUrls = options.urls(u"openai-base-url"_s);
    openAi.model = options[u"openai-model"_s].toStdString();
    openAi.key = options.secret(u"openai-key-file"_s, u"openai-key"_s);
    openAi.language = options[u"language"_s].toStdString();
    openAi.prompt = options[u"openai-prompt"_s].toStdString();
    openAi.timeout = std::chrono::seconds(options.number(u"openai-timeout"_s, 1, 600));
    openAi.attempts = static_cast<int>(options.number(u"openai-attempts"_s, 1, 10));
    openAi.concurrency = static_cast<int>(options.number(u"openai-concurrency"_s, 1, 256));
    for (const auto &name : {u"openai-base-url"_s, u"openai-model"_s}) {
        if (options[name].isEmpty()) {
            options.fail(name, u"must not be empty"_s);
        }
    }
    for (const auto &baseUrl : openAi.baseUrls) {
        requireSecrecy(options, u"openai-base-url"_s, baseUrl, openAi.key);
    }
    return openAi;
}

CommandOptions command(const Options &options)
{
    constexpr qint64 mebibyte = 1024LL * 1024;
    CommandOptions command;
    command.command = options.list(u"command"_s);
    command.language = options[u"language"_s].toStdString();
    command.timeout = std::chrono::seconds(options.number(u"command-timeout"_s, 1, 600));
    command.memory = options.number(u"command-memory"_s, 0, 1'000'000'000) * mebibyte;
    command.processorTime = options.number(u"command-cpu"_s, 0, 1'000'000);
    command.concurrency = static_cast<int>(options.number(u"command-concurrency"_s, 1, 256));
    if (command.command.isEmpty()) {
        options.fail(u"command"_s, u"must name the program to transcribe with, and its arguments"_s);
    }
    return command;
}

WyomingOptions wyoming(const Options &options)
{
    const QUrl url(u"tcp://"_s + options[u"wyoming-server"_s], QUrl::StrictMode);
    if (url.host().isEmpty() || url.port() <= 0 || !url.path().isEmpty()) {
        options.fail(u"wyoming-server"_s, u"must be a host and a port, such as 127.0.0.1:10300"_s);
    }
    return {url.host().toStdString(), std::to_string(url.port()), options[u"language"_s].toStdString(),
            std::chrono::seconds(options.number(u"wyoming-timeout"_s, 1, 600)),
            static_cast<int>(options.number(u"wyoming-concurrency"_s, 1, 256))};
}

std::vector<Pack> packs(const Options &options)
{
    static const QRegularExpression form(u"^([1-9][0-9]{0,11})=([1-9][0-9]{0,11})$"_s);
    std::vector<Pack> packs;
    for (const auto &item : options.list(u"packs"_s)) {
        const auto match = form.match(item);
        if (!match.hasMatch()) {
            options.fail(u"packs"_s, u"must be a list of tokens=price, both whole numbers above 0"_s);
        }
        packs.push_back({match.captured(1).toLongLong(), match.captured(2).toLongLong()});
    }
    if (packs.empty()) {
        options.fail(u"packs"_s, u"must not be empty"_s);
    }
    return packs;
}

CheckoutOptions checkout(const Options &options)
{
    using Provider = CheckoutOptions::Provider;
    static const QRegularExpression currencyForm(u"^[a-z]{3}$"_s);
    CheckoutOptions checkout;
    checkout.provider = choice<Provider>(
        options, u"checkout"_s,
        {{u"manual"_s, Provider::Manual}, {u"stripe"_s, Provider::Stripe}, {u"none"_s, Provider::None}});
    checkout.publicUrl = options.url(u"public-url"_s);
    const auto isEverywhere = addressOf(options, u"address"_s, options[u"address"_s]).is_unspecified();
    if (checkout.publicUrl.empty() && checkout.provider != Provider::None &&
        (isEverywhere || checkout.provider == Provider::Stripe)) {
        options.fail(u"public-url"_s, u"is needed for the checkout links, unless checkout is none"_s);
    }
    checkout.packs = packs(options);
    checkout.currency = options[u"currency"_s].toLower();
    if (!currencyForm.match(checkout.currency).hasMatch()) {
        options.fail(u"currency"_s, u"must have three letters"_s);
    }
    if (checkout.provider == Provider::Stripe) {
        checkout.stripe.baseUrl = options.url(u"stripe-base-url"_s);
        checkout.stripe.key = options.secret(u"stripe-key-file"_s, u"stripe-key"_s);
        checkout.stripe.webhookSecret = options.secret(u"stripe-webhook-secret-file"_s, u"stripe-webhook-secret"_s);
        if (checkout.stripe.key.empty()) {
            options.fail(u"stripe-key-file"_s, u"is needed to sell with Stripe"_s);
        }
        if (checkout.stripe.webhookSecret.empty()) {
            options.fail(u"stripe-webhook-secret-file"_s, u"is needed to sell with Stripe"_s);
        }
        requireSecrecy(options, u"stripe-base-url"_s, checkout.stripe.baseUrl, checkout.stripe.key);
    }
    return checkout;
}

} // namespace

Settings storeSettingsOf(const Options &options)
{
    Settings settings;
    settings.database = database(options);
    settings.grants.freeTokens = options.number(u"free-tokens"_s, 0, mostTokens);
    if (!options[u"daily-free-tokens"_s].isEmpty()) {
        settings.grants.dailyPool = options.number(u"daily-free-tokens"_s, 0, mostTokens);
    }
    return settings;
}

Settings settingsOf(const Options &options)
{
    auto settings = storeSettingsOf(options);
    settings.endpoint = {addressOf(options, u"address"_s, options[u"address"_s]),
                         static_cast<uint16_t>(options.number(u"port"_s, 0, 65535))};
    for (const auto &proxy : options.list(u"trusted-proxies"_s)) {
        const auto network = Network::parse(proxy.toStdString());
        if (!network) {
            options.fail(u"trusted-proxies"_s, u"must be IP addresses, or blocks of them such as 10.0.0.0/8"_s);
        }
        settings.server.trustedProxies.push_back(*network);
    }
    settings.server.connections = static_cast<size_t>(options.number(u"connections"_s, 1, 1'000'000));
    settings.server.connectionsPerAddress =
        static_cast<int>(options.number(u"connections-per-address"_s, 0, 1'000'000));
    if (!options[u"monitor"_s].isEmpty()) {
        settings.monitor = endpointOf(options, u"monitor"_s);
        settings.api.isMonitoredApart = true;
    }
    settings.server.drain = std::chrono::seconds(options.number(u"stop-timeout"_s, 0, 3600));
    settings.accessLog = choice<bool>(options, u"access-log"_s, {{u"none"_s, false}, {u"json"_s, true}});
    settings.engine = choice<Settings::EngineKind>(options, u"engine"_s,
                                                   {{u"pocketsphinx"_s, Settings::EngineKind::PocketSphinx},
                                                    {u"openai"_s, Settings::EngineKind::OpenAi},
                                                    {u"command"_s, Settings::EngineKind::Command},
                                                    {u"wyoming"_s, Settings::EngineKind::Wyoming}});
    settings.engineQueue = settings.engine == Settings::EngineKind::OpenAi ? serverQueue : embeddedQueue;
    if (!options[u"engine-queue"_s].isEmpty()) {
        settings.engineQueue = static_cast<int>(options.number(u"engine-queue"_s, 1, 100'000));
    }
    switch (settings.engine) {
    case Settings::EngineKind::OpenAi:
        settings.openAi = openAi(options);
        break;
    case Settings::EngineKind::Command:
        settings.command = command(options);
        break;
    case Settings::EngineKind::Wyoming:
        settings.wyoming = wyoming(options);
        break;
    case Settings::EngineKind::PocketSphinx:
        break;
    }
    settings.api.transcription.tokensPerSecond = options.number(u"tokens-per-second"_s, 0, 1'000'000);
    settings.api.transcription.atOncePerDevice =
        static_cast<int>(options.number(u"transcriptions-per-device"_s, 0, 100'000));
    settings.api.transcription.decodingPerDevice =
        std::chrono::seconds(options.number(u"decoding-per-device"_s, 1, 86'400));
    settings.api.registrationsPerHour = static_cast<int>(options.number(u"registrations-per-hour"_s, 0, 3600));
    settings.api.checkout = checkout(options);
    return settings;
}

QString shownDatabase(const QString &database)
{
    return Database::isPostgreSql(database) ? QUrl(database).toString(QUrl::RemovePassword | QUrl::RemoveQuery)
                                            : database;
}
