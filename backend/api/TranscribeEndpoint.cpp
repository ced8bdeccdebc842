// SPDX-License-Identifier: MIT
#include "api/TranscribeEndpoint.h"

#include "http/Multipart.h"
#include "support/Log.h"

#include <QJsonObject>
#include <boost/asio/any_io_executor.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A dictation of the usual length is done by then.
constexpr std::chrono::seconds busyDelay{5};

Reply transcript(const QString &words, qint64 balance)
{
    return jsonReply({{u"text"_s, words}, {u"balance"_s, balance}});
}

Refusal clientClosed()
{
    return {400, "client_closed", "The connection was closed early."};
}

/// The tokens are free again in any case when the hold lapses.
net::awaitable<void> release(StoreThreads &store, Ledger::Hold hold)
{
    try {
        co_await store.run([&](Store &kept) {
            kept.ledger.release(hold);
            return true;
        });
    } catch (const StoreError &error) {
        logLine(error.what());
    }
}

} // namespace

/// Tokens that are set aside for a recording, and let go of with this unless they were taken, when `hold` is empty.
struct TranscribeEndpoint::HeldTokens {
    HeldTokens(net::any_io_executor executor, StoreThreads &store, Ledger::Hold held)
        : hold(std::move(held)), m_executor(std::move(executor)), m_store(store)
    {
    }
    /// Does not wait until they are free.
    ~HeldTokens()
    {
        if (!hold.id.isEmpty()) {
            net::co_spawn(m_executor, release(m_store, std::move(hold)), net::detached);
        }
    }
    HeldTokens(const HeldTokens &) = delete;
    HeldTokens &operator=(const HeldTokens &) = delete;

    Ledger::Hold hold;

private:
    net::any_io_executor m_executor;
    StoreThreads &m_store;
};

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
    const auto tokens = co_await hold(device, inspection.startedSeconds * m_options.tokensPerSecond);
    QString words;
    if (inspection.mayHoldSpeech) {
        words = co_await textOf(*file, request);
    }
    if (!request.connected()) {
        throw clientClosed();
    }
    if (words.isEmpty()) { // what brings no text is free
        const auto left = co_await m_store.run([&](Store &store) { return store.ledger.balance(device.id); });
        co_return transcript(words, left);
    }
    const auto balance = co_await m_store.run([&](Store &store) { return store.ledger.deliver(tokens->hold); });
    if (!balance) {
        throw Refusal::insufficientTokens(); // the hold lapsed, and the tokens went elsewhere
    }
    auto reply = transcript(words, *balance);
    reply.sent = [this, tokens, seconds = inspection.startedSeconds](bool delivered) -> net::awaitable<void> {
        if (delivered) {
            co_await charge(*tokens, seconds);
        }
    };
    co_return reply;
}

net::awaitable<std::shared_ptr<TranscribeEndpoint::HeldTokens>> TranscribeEndpoint::hold(const Device &device,
                                                                                         qint64 tokens)
{
    auto hold = co_await m_store.run([&](Store &store) { return store.ledger.hold(device.id, tokens); });
    if (!hold) {
        throw Refusal::insufficientTokens();
    }
    co_return std::make_shared<HeldTokens>(co_await net::this_coro::executor, m_store, std::move(*hold));
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
        if (!words) { // because the client has gone, or the server stops before the recording's turn
            throw request.connected() ? Refusal::engineBusy().retryAfter(busyDelay) : clientClosed();
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
net::awaitable<void> TranscribeEndpoint::charge(HeldTokens &tokens, qint64 seconds)
{
    net::steady_timer pause(co_await net::this_coro::executor);
    auto delay = m_options.chargeDelay;
    for (int attempt = 1; attempt <= m_options.chargeAttempts; ++attempt) {
        try {
            const auto taken = co_await m_store.run([&](Store &store) { return store.ledger.settle(tokens.hold); });
            m_metrics.delivered(seconds, taken);
            tokens.hold = {};
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
