// SPDX-License-Identifier: MIT
#include "engine/Transcriber.h"

#include "audio/SpeechGate.h"
#include "support/Log.h"

#include <QScopeGuard>
#include <boost/asio/post.hpp>

#include <ctime>
#include <utility>

namespace {

constexpr int decoders = 2;

/// The time that the calling thread has had a processor for; what others did meanwhile does not count.
std::chrono::nanoseconds processorTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

Transcriber::Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest, int places)
    : m_engine(std::move(engine)),
      m_longest(longest),
      m_places(places),
      m_decodingTurns(decoders),
      m_transcribingTurns(m_engine->concurrency()),
      m_decoding(decoders),
      m_transcribing(static_cast<size_t>(m_engine->concurrency()))
{
    net::post(m_transcribing, [this, prepared = m_engine] {
        try {
            prepared->prepare();
            m_state = State::Ready;
        } catch (const EngineError &error) {
            m_state = State::Failed;
            logLine(error.what());
        }
    });
}

Transcriber::Place Transcriber::enter()
{
    if (m_stopping || m_taken >= m_places) {
        return nullptr;
    }
    ++m_taken;
    return {this, [this](void *) { --m_taken; }};
}

net::awaitable<std::optional<Inspection>> Transcriber::inspect(Job &job)
{
    const auto turn = co_await awaitTurn(m_decodingTurns, job);
    if (!turn) {
        co_return std::nullopt;
    }
    co_return co_await runOn(m_decoding, [&job, longest = m_longest]() -> std::optional<Inspection> {
        const auto started = processorTime();
        const auto measured = qScopeGuard([&] { job.decoding = processorTime() - started; });
        SpeechGate gate;
        const auto count = decodeAudio(job.file, {.longest = longest, .wanted = job.wanted},
                                       [&](std::span<const int16_t> samples) { gate.add(samples); });
        const auto startedSeconds = (static_cast<qint64>(count) + speechRate - 1) / speechRate;
        return Inspection{startedSeconds, gate.mayHoldSpeech()};
    });
}

net::awaitable<std::optional<QString>> Transcriber::transcribe(Job &job)
{
    const auto turn = co_await awaitTurn(m_transcribingTurns, job);
    if (!turn) {
        co_return std::nullopt;
    }
    const auto engine = m_engine; // which may be replaced meanwhile
    co_return co_await runOn(m_transcribing, [&]() -> std::optional<QString> {
        if (m_stopping || !job.wanted()) {
            return std::nullopt;
        }
        const auto started = std::chrono::steady_clock::now();
        const auto measured = qScopeGuard([&] { job.transcribing = std::chrono::steady_clock::now() - started; });
        return engine->transcribe({job.file, m_longest, job.language, job.prompt, job.wanted});
    });
}

/// Jobs wait in this queue and not in the threads' own, because nothing could be taken out of that.
net::awaitable<FairQueue::Turn> Transcriber::awaitTurn(FairQueue &queue, Job &job)
{
    const auto started = std::chrono::steady_clock::now();
    const auto measured = qScopeGuard([&] { job.queued += std::chrono::steady_clock::now() - started; });
    co_return co_await queue.enter(job.owner);
}

void Transcriber::stop()
{
    m_stopping = true;
    m_decodingTurns.stop();
    m_transcribingTurns.stop();
}
