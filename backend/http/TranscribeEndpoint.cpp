// SPDX-License-Identifier: MIT
#include "http/TranscribeEndpoint.h"

#include "http/Multipart.h"
#include "support/Log.h"

#include <QJsonObject>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>

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
        m_options.largestUpload, [this](const Request &head) -> net::awaitable<void> { co_await payingDevice(head); });
}

/// Refuses who could not pay for the shortest recording, too.
net::awaitable<Device> TranscribeEndpoint::payingDevice(const Request &request) const
{
    auto device = co_await m_authenticator.authenticate(request);
    if (!device.unmetered && device.balance < m_options.tokensPerSecond) {
        throw Refusal::insufficientTokens();
    }
    co_return device;
}

net::awaitable<Reply> TranscribeEndpoint::transcribe(const Request &request)
{
    const auto device = co_await payingDevice(request); // the upload may have taken minutes
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
    std::optional<QString> words = QString();
    std::optional<qint64> balance;
    std::exception_ptr failure;
    try {
        if (inspection.mayHoldSpeech) {
            words = co_await textOf(*file, request);
        }
        // What brought no text is free, and so is what nobody waits for any more.
        if (words && !words->isEmpty() && request.connected()) {
            balance = co_await m_store.run([&](Store &store) { return store.ledger.deliver(*hold); });
        }
    } catch (...) {
        failure = std::current_exception();
    }
    if (!balance) {
        co_await release(*hold);
        if (failure) {
            std::rethrow_exception(failure);
        }
        if (!request.connected()) {
            throw Refusal(400, "client_closed", "The connection was closed early.");
        }
        if (!words) {
            throw Refusal::engineBusy().retryAfter(busyDelay); // the server stops before the recording's turn
        }
        if (!words->isEmpty()) {
            throw Refusal::insufficientTokens(); // the hold lapsed, and the tokens went elsewhere
        }
        const auto left = co_await m_store.run([&](Store &store) { return store.ledger.balance(device.id); });
        co_return transcript(QString(), left);
    }
    auto reply = transcript(*words, *balance);
    reply.sent = [this, held = *hold, seconds = inspection.startedSeconds](bool delivered) {
        return delivered ? charge(held, seconds) : release(held);
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

net::awaitable<std::optional<QString>> TranscribeEndpoint::textOf(std::string_view file, const Request &request)
{
    const auto started = std::chrono::steady_clock::now();
    try {
        const auto words = co_await m_transcriber.transcribe(file, request.connected);
        if (!words) {
            co_return std::nullopt;
        }
        m_metrics.engineRan(std::chrono::steady_clock::now() - started, true);
        co_return words->trimmed();
    } catch (const EngineError &error) {
        m_metrics.engineRan(std::chrono::steady_clock::now() - started, false);
        logLine(error.what());
        const auto refusal = Refusal::engineUnavailable();
        throw error.retryAfter() ? refusal.retryAfter(*error.retryAfter()) : refusal;
    }
}

/// Tries until the tokens are taken: the client has its transcript. However often that is, it happens once.
net::awaitable<void> TranscribeEndpoint::charge(Ledger::Hold hold, qint64 seconds)
{
    net::steady_timer pause(co_await net::this_coro::executor);
    auto delay = m_options.chargeDelay;
    for (int attempt = 1; attempt <= m_options.chargeAttempts; ++attempt) {
        try {
            const auto tokens = co_await m_store.run([&](Store &store) { return store.ledger.settle(hold); });
            m_metrics.delivered(seconds, tokens);
            co_return;
        } catch (const StoreError &error) {
            m_metrics.chargeFailed();
            logLine(error.what());
        }
        pause.expires_after(delay);
        co_await pause.async_wait(net::use_awaitable);
        delay *= 2;
    }
    logLine("a delivered transcript was not charged");
}

/// The tokens are free again in any case when the hold lapses.
net::awaitable<void> TranscribeEndpoint::release(Ledger::Hold hold)
{
    try {
        co_await m_store.run([&](Store &store) {
            store.ledger.release(hold);
            return true;
        });
    } catch (const StoreError &error) {
        logLine(error.what());
    }
}
