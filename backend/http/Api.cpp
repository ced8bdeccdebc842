// SPDX-License-Identifier: MIT
#include "http/Api.h"

#include "audio/SpeechGate.h"
#include "http/CheckoutPage.h"
#include "http/Multipart.h"
#include "support/Log.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>
#include <boost/beast/core/string.hpp>

#include <array>

namespace {

constexpr size_t largestSmallBody = 16'384;
constexpr qsizetype longestPlatform = 32;
constexpr std::string_view transcribePath = "/v1/transcribe";
constexpr std::string_view checkoutPrefix = "/checkout/";

QString text(const char *literal)
{
    return QString::fromLatin1(literal);
}

QByteArray checkoutToken(const Request &request)
{
    return QByteArray::fromStdString(request.path.substr(checkoutPrefix.size()));
}

Reply transcript(const QString &words, qint64 balance)
{
    return jsonReply({{text("text"), words}, {text("balance"), balance}});
}

} // namespace

Api::Api(ApiOptions options, StoreThread &store, Transcriber &transcriber)
    : m_options(std::move(options)), m_store(store), m_transcriber(transcriber)
{
}

std::span<const Api::Route> Api::routes()
{
    static const std::array all{
        Route{"POST", "/v1/devices", &Api::registerDevice},
        Route{"POST", transcribePath, &Api::transcribe},
        Route{"GET", "/v1/balance", &Api::balance},
        Route{"POST", "/v1/checkout/link", &Api::createCheckoutLink},
        Route{"GET", "/checkout/*", &Api::showCheckout},
        Route{"POST", "/checkout/*", &Api::buy},
    };
    return all;
}

bool Api::matches(const Route &route, std::string_view path)
{
    return route.path.ends_with('*') ? path.starts_with(route.path.substr(0, route.path.size() - 1))
                                     : path == route.path;
}

size_t Api::bodyLimit(std::string_view path) const
{
    return path == transcribePath ? m_options.largestUpload : largestSmallBody;
}

net::awaitable<Reply> Api::handle(const Request &request)
{
    std::string route = "-";
    std::string allowed;
    Reply reply;
    try {
        const Route *chosen = nullptr;
        for (const auto &candidate : routes()) {
            if (matches(candidate, request.path)) {
                route = candidate.path;
                allowed += (allowed.empty() ? "" : ", ") + std::string(candidate.method);
                chosen = candidate.method == request.method ? &candidate : chosen;
            }
        }
        if (!chosen) {
            throw allowed.empty() ? Refusal::notFound() : Refusal::methodNotAllowed();
        }
        reply = co_await (this->*chosen->handler)(request);
    } catch (const Refusal &refusal) {
        reply = refusal.reply();
    } catch (const std::exception &error) {
        logLine(error.what());
        reply = Refusal::serverError().reply();
    }
    if (reply.status == 405) {
        reply.headers.emplace_back("Allow", allowed);
    }
    reply.route = route;
    co_return reply;
}

net::awaitable<Device> Api::authenticate(const Request &request)
{
    constexpr std::string_view scheme = "Bearer ";
    const std::string_view header = request.authorization;
    if (!boost::beast::iequals(header.substr(0, scheme.size()), scheme)) {
        throw Refusal::unauthorized();
    }
    const auto credential = QByteArray::fromStdString(request.authorization.substr(scheme.size()));
    const auto device = co_await m_store.run([&](Store &store) { return store.devices.authenticate(credential); });
    if (!device) {
        throw Refusal::unauthorized();
    }
    co_return *device;
}

net::awaitable<Reply> Api::registerDevice(const Request &request)
{
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(request.body)).object();
    const auto platform = document[text("platform")].toString();
    if (platform.isEmpty() || platform.size() > longestPlatform) {
        throw Refusal::badRequest();
    }
    const auto device = co_await m_store.run([&](Store &store) { return store.devices.add(platform); });
    co_return jsonReply({{text("deviceId"), device.deviceId},
                         {text("secret"), device.secret},
                         {text("freeGrantMissed"), device.freeGrantMissed}});
}

net::awaitable<Reply> Api::transcribe(const Request &request)
{
    const auto device = co_await authenticate(request);
    const auto file = uploadedFile(request.contentType, request.body);
    if (!file) {
        throw Refusal::badRequest();
    }
    const auto samples = co_await decode(*file);
    const auto startedSeconds = (static_cast<qint64>(samples.size()) + speechRate - 1) / speechRate;
    const auto cost = startedSeconds * m_options.tokensPerSecond;
    if (!device.unmetered && device.balance < cost) {
        throw Refusal::insufficientTokens();
    }
    QString words;
    if (mayHoldSpeech(samples)) {
        words = co_await textOf(Recording{*file, samples}, request);
    }
    // What brought no text is free, and so is what nobody waits for any more.
    if (words.isEmpty() || !request.connected()) {
        const auto left = co_await m_store.run([&](Store &store) { return store.ledger.balance(device.id); });
        co_return transcript(QString(), left);
    }
    const auto charge = co_await m_store.run([&](Store &store) { return store.ledger.charge(device.id, cost); });
    if (!charge) {
        throw Refusal::insufficientTokens(); // another request of this device was faster
    }
    auto reply = transcript(words, charge->balance);
    reply.undelivered = [this, id = device.id, taken = *charge] {
        return m_store.run([id, taken](Store &store) { store.ledger.refund(id, taken); });
    };
    co_return reply;
}

net::awaitable<Samples> Api::decode(std::string_view file)
{
    try {
        co_return co_await m_transcriber.decode(file);
    } catch (const AudioError &error) {
        throw error.kind() == AudioError::Kind::TooLong ? Refusal::tooLarge() : Refusal::unsupportedAudio();
    }
}

net::awaitable<QString> Api::textOf(Recording recording, const Request &request)
{
    try {
        const auto words = co_await m_transcriber.transcribe(recording, request.connected);
        co_return words.trimmed();
    } catch (const EngineError &error) {
        logLine(error.what());
        throw Refusal::engineUnavailable();
    }
}

net::awaitable<Reply> Api::balance(const Request &request)
{
    const auto device = co_await authenticate(request);
    co_return jsonReply({{text("balance"), device.balance}, {text("unmetered"), device.unmetered}});
}

net::awaitable<Reply> Api::createCheckoutLink(const Request &request)
{
    const auto device = co_await authenticate(request);
    if (!m_options.manualCheckout) {
        throw Refusal(404, "not_found", "Tokens can't be bought on this server.");
    }
    const auto token = co_await m_store.run([&](Store &store) { return store.checkoutLinks.add(device.id); });
    const auto url = m_options.publicUrl + std::string(checkoutPrefix) + token.toStdString();
    co_return jsonReply({{text("url"), QString::fromStdString(url)}});
}

net::awaitable<Reply> Api::showCheckout(const Request &request)
{
    const auto token = checkoutToken(request);
    const auto valid = co_await m_store.run([&](Store &store) { return store.checkoutLinks.isValid(token); });
    co_return valid ? packsPage() : expiredPage();
}

net::awaitable<Reply> Api::buy(const Request &request)
{
    const QUrlQuery form(QString::fromStdString(request.body));
    const auto *pack = findPack(form.queryItemValue(text("pack")));
    if (!pack) {
        throw Refusal::badRequest();
    }
    const auto token = checkoutToken(request);
    const auto balance =
        co_await m_store.run([&](Store &store) { return store.checkoutLinks.redeem(token, pack->tokens); });
    co_return balance ? boughtPage(*pack, *balance) : expiredPage();
}
