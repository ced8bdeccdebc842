// SPDX-License-Identifier: MIT
#include "api/TranscribeEndpoint.h"

#include "http/Multipart.h"
#include "support/Log.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <boost/asio/any_io_executor.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A dictation of the usual length is done by then.
constexpr std::chrono::seconds busyDelay{5};
// Held before the time that decoding takes is known.
constexpr std::chrono::milliseconds leastDecoding{200};

Reply transcript(const QString &words, qint64 balance)
{
    return jsonReply({{u"text"_s, words}, {u"balance"_s, balance}});
}

QJsonObject logOf(const Transcriber::Job &job, qint64 seconds, qint64 tokens)
{
    const auto milliseconds = [](Transcriber::Duration duration) {
        return static_cast<qint64>(std::chrono::round<std::chrono::milliseconds>(duration).count());
    };
    return {{u"device"_s, QString::fromStdString(job.owner)},
            {u"seconds"_s, seconds},
            {u"tokens"_s, tokens},
            {u"queueMs"_s, milliseconds(job.queued)},
            {u"decodingMs"_s, milliseconds(job.decoding)},
            {u"engineMs"_s, milliseconds(job.transcribing)}};
}

Refusal clientClosed()
{
    return {400, "client_closed", "The connection was closed early."};
}

/// Of a recording that was not worked on: its client has gone, the server stops before its turn, or it took too long.
Refusal notInTime(const Transcriber::Job &job)
{
    return job.wanted() ? Refusal::engineBusy().retryAfter(busyDelay) : clientClosed();
}

Refusal refusalOf(const AudioError &error, const Transcriber::Job &job)
{
    switch (error.kind()) {
    case AudioError::Kind::TooLong:
        return Refusal::tooLarge();
    case AudioError::Kind::Stopped:
        return notInTime(job);
    case AudioError::Kind::Unsupported:
    case AudioError::Kind::TooCostly:
        break;
    }
    return Refusal::unsupportedAudio();
}

/// Of the form that the request holds. Throws Refusal.
Transcriber::Job jobOf(const Request &request)
{
    static const QRegularExpression languageForm(u"^[A-Za-z]{2,3}(-[A-Za-z0-9]{1,8}){0,3}$"_s);
    constexpr qsizetype longestPrompt = 1000;
    const auto form = parseForm(request.contentType, request.body);
    const auto text = [&](std::string_view name) {
        const auto field = form->find(name);
        return field == form->end() ? std::string() : std::string(field->second);
    };
    if (!form || !form->contains("file")) {
        throw Refusal::badRequest();
    }
    Transcriber::Job job{form->find("file")->second, {}, request.connected, text("language"), text("prompt")};
    const auto prompt = QString::fromStdString(job.prompt);
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n'; };
    if ((!job.language.empty() && !languageForm.match(QString::fromStdString(job.language)).hasMatch()) ||
        prompt.size() > longestPrompt || prompt.toStdString() != job.prompt || std::ranges::any_of(prompt, isControl)) {
        throw Refusal::badRequest();
    }
    return job;
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

TranscribeEndpoint::TranscribeEndpoint(Options options, StoreThreads &store, Transcriber &transcriber, Limits &limits,
                                       Metrics &metrics)
    : m_options(options),
      m_store(store),
      m_authenticator(store),
      m_transcriber(transcriber),
      m_limits(limits),
      m_metrics(metrics),
      m_shares(options.atOncePerDevice)
{
}

void TranscribeEndpoint::addTo(Router &router)
{
    router.add(
        "POST", "/v1/transcribe", [this](const Request &request) { return transcribe(request); },
        m_options.largestUpload, [this](const Request &head) { return admit(head); });
}

void TranscribeEndpoint::reload(const Options &options)
{
    m_options = options;
    m_shares.limit(options.atOncePerDevice);
}

/// One of the device's places for uploads and what comes of them.
net::awaitable<std::shared_ptr<void>> TranscribeEndpoint::admit(const Request &head)
{
    const auto device = co_await payingDevice(head);
    auto share = m_shares.take(device.id.toStdString());
    if (!share) {
        throw Refusal::tooManyRequests().retryAfter(busyDelay);
    }
    co_return share;
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
    auto job = jobOf(request);
    job.owner = device.id.toStdString();
    const auto place = m_transcriber.enter();
    if (!place) {
        throw Refusal::engineBusy().retryAfter(busyDelay);
    }
    const auto inspection = co_await inspect(job);
    const auto tokens = co_await hold(device, inspection.startedSeconds * m_options.tokensPerSecond);
    QString words;
    if (inspection.mayHoldSpeech) {
        words = co_await textOf(job);
    }
    m_metrics.waited(job.queued);
    if (!request.connected()) {
        throw clientClosed();
    }
    if (words.isEmpty()) { // what brings no text is free
        const auto left = co_await m_store.run([&](Store &store) { return store.ledger.balance(device.id); });
        auto reply = transcript(words, left);
        reply.log = logOf(job, inspection.startedSeconds, 0);
        co_return reply;
    }
    const auto balance = co_await m_store.run([&](Store &store) { return store.ledger.deliver(tokens->hold); });
    if (!balance) {
        throw Refusal::insufficientTokens(); // the hold lapsed, and the tokens went elsewhere
    }
    auto reply = transcript(words, *balance);
    reply.log = logOf(job, inspection.startedSeconds, tokens->hold.amount);
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

/// Decoding is paid from an allowance of time, whatever comes of it: what can't be read costs the server as much.
net::awaitable<Inspection> TranscribeEndpoint::inspect(Transcriber::Job &job)
{
    const auto owner = "decoding " + job.owner;
    const auto regained = [this](auto time) { return std::chrono::ceil<Limits::Time>(time * m_options.decodingPause); };
    const auto delay = co_await m_limits.take(owner, regained(leastDecoding), regained(m_options.decodingPerDevice));
    if (delay) {
        throw Refusal::tooManyRequests().retryAfter(std::chrono::ceil<std::chrono::seconds>(*delay));
    }
    std::optional<Inspection> inspection;
    std::optional<Refusal> refusal;
    try {
        inspection = co_await m_transcriber.inspect(job);
    } catch (const AudioError &error) {
        refusal = refusalOf(error, job);
    }
    m_metrics.decoded(job.decoding);
    if (job.decoding > leastDecoding) {
        co_await m_limits.add(owner, regained(job.decoding - leastDecoding));
    }
    if (refusal || !inspection) {
        throw refusal ? *refusal : notInTime(job);
    }
    co_return *inspection;
}

net::awaitable<QString> TranscribeEndpoint::textOf(Transcriber::Job &job)
{
    try {
        const auto words = co_await m_transcriber.transcribe(job);
        if (!words) {
            throw notInTime(job);
        }
        m_metrics.engineRan(job.transcribing, true);
        co_return words->trimmed();
    } catch (const EngineError &error) {
        m_metrics.engineRan(job.transcribing, false);
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
