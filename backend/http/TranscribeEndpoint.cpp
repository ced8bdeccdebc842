// SPDX-License-Identifier: MIT
#include "http/TranscribeEndpoint.h"

#include "http/Multipart.h"
#include "support/Log.h"

#include <QJsonObject>

#include <exception>

using namespace Qt::StringLiterals;

namespace {

// A dictation of the usual length is done by then.
constexpr std::chrono::seconds busyDelay{5};

Reply transcript(const QString &words, qint64 balance)
{
    return jsonReply({{u"text"_s, words}, {u"balance"_s, balance}});
}

} // namespace

TranscribeEndpoint::TranscribeEndpoint(Options options, StoreThreads &store, Transcriber &transcriber, Metrics &metrics)
    : m_options(options), m_store(store), m_authenticator(store), m_transcriber(transcriber), m_metrics(metrics)
{
}

void TranscribeEndpoint::addTo(Router &router)
{
    router.add(
        "POST", "/v1/transcribe", [this](const Request &request) { return transcribe(request); },
        m_options.largestUpload);
}

net::awaitable<Reply> TranscribeEndpoint::transcribe(const Request &request)
{
    const auto device = co_await m_authenticator.authenticate(request);
    const auto file = uploadedFile(request.contentType, request.body);
    if (!file) {
        throw Refusal::badRequest();
    }
    const auto place = m_transcriber.enter();
    if (!place) {
        throw Refusal::engineBusy().retryAfter(busyDelay);
    }
    const auto inspection = co_await inspect(*file);
    const auto cost = inspection.startedSeconds * m_options.tokensPerSecond;
    auto hold = co_await m_store.run([&](Store &store) { return store.ledger.hold(device.id, cost); });
    if (!hold) {
        throw Refusal::insufficientTokens();
    }
    QString words;
    std::optional<qint64> balance;
    std::exception_ptr failure;
    try {
        if (inspection.mayHoldSpeech) {
            words = co_await textOf(*file, request);
        }
        // What brought no text is free, and so is what nobody waits for any more.
        if (!words.isEmpty() && request.connected()) {
            balance = co_await m_store.run([&](Store &store) { return store.ledger.deliver(*hold); });
        }
    } catch (...) {
        failure = std::current_exception();
    }
    if (!balance) {
        co_await end(*hold, false, 0);
        if (failure) {
            std::rethrow_exception(failure);
        }
        if (!request.connected()) {
            throw Refusal(400, "client_closed", "The connection was closed early.");
        }
        if (!words.isEmpty()) {
            throw Refusal::insufficientTokens(); // the hold lapsed, and the tokens went elsewhere
        }
        const auto left = co_await m_store.run([&](Store &store) { return store.ledger.balance(device.id); });
        co_return transcript(QString(), left);
    }
    auto reply = transcript(words, *balance);
    reply.sent = [this, held = *hold, seconds = inspection.startedSeconds](bool delivered) {
        return end(held, delivered, seconds);
    };
    co_return reply;
}

net::awaitable<Inspection> TranscribeEndpoint::inspect(std::string_view file)
{
    try {
        co_return co_await m_transcriber.inspect(file);
    } catch (const AudioError &error) {
        throw error.kind() == AudioError::Kind::TooLong ? Refusal::tooLarge() : Refusal::unsupportedAudio();
    }
}

net::awaitable<QString> TranscribeEndpoint::textOf(std::string_view file, const Request &request)
{
    const auto started = std::chrono::steady_clock::now();
    try {
        const auto words = co_await m_transcriber.transcribe(file, request.connected);
        m_metrics.engineRan(std::chrono::steady_clock::now() - started, true);
        co_return words.trimmed();
    } catch (const EngineError &error) {
        m_metrics.engineRan(std::chrono::steady_clock::now() - started, false);
        logLine(error.what());
        const auto refusal = Refusal::engineUnavailable();
        throw error.retryAfter() ? refusal.retryAfter(*error.retryAfter()) : refusal;
    }
}

net::awaitable<void> TranscribeEndpoint::end(Ledger::Hold hold, bool delivered, qint64 seconds)
{
    co_await m_store.run([&](Store &store) {
        if (delivered) {
            store.ledger.settle(hold);
        } else {
            store.ledger.release(hold);
        }
        return true;
    });
    if (delivered) {
        m_metrics.delivered(seconds, hold.id.isEmpty() ? 0 : hold.amount);
    }
}
