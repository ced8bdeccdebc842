// SPDX-License-Identifier: MIT
#include "engine/Transcriber.h"

#include "audio/SpeechGate.h"
#include "support/Log.h"

#include <boost/asio/post.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/this_coro.hpp>

#include <utility>

Transcriber::Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest, int places)
    : m_engine(std::move(engine)),
      m_longest(longest),
      m_places(places),
      m_free(m_engine->concurrency()),
      m_decoding(2),
      m_transcribing(static_cast<size_t>(m_engine->concurrency()))
{
    net::post(m_transcribing, [this] {
        try {
            m_engine->prepare();
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

net::awaitable<Inspection> Transcriber::inspect(std::string_view file)
{
    return runOn(m_decoding, [file, longest = m_longest] {
        SpeechGate gate;
        const auto count = decodeAudio(file, longest, [&](std::span<const int16_t> samples) { gate.add(samples); });
        const auto startedSeconds = (static_cast<qint64>(count) + speechRate - 1) / speechRate;
        return Inspection{startedSeconds, gate.mayHoldSpeech()};
    });
}

net::awaitable<std::optional<QString>> Transcriber::transcribe(std::string_view file, std::function<bool()> wanted)
{
    if (!co_await awaitTurn()) {
        co_return std::nullopt;
    }
    const Place turn(this, [this](void *) { endTurn(); });
    co_return co_await runOn(m_transcribing, [this, file, wanted = std::move(wanted)]() -> std::optional<QString> {
        if (m_stopping || !wanted()) {
            return std::nullopt;
        }
        return m_engine->transcribe({file, m_longest});
    });
}

void Transcriber::stop()
{
    m_stopping = true;
    for (auto *waiting : std::exchange(m_waiting, {})) {
        waiting->turn.cancel();
    }
}

/// Waits here and not in the threads' own queue, out of which nothing could be taken.
net::awaitable<bool> Transcriber::awaitTurn()
{
    if (m_stopping) {
        co_return false;
    }
    if (m_free > 0) {
        --m_free;
        co_return true;
    }
    Waiting waiting{{co_await net::this_coro::executor, net::steady_timer::time_point::max()}};
    m_waiting.push_back(&waiting);
    boost::system::error_code cancelled;
    co_await waiting.turn.async_wait(net::redirect_error(net::use_awaitable, cancelled));
    co_return waiting.hasTurn;
}

void Transcriber::endTurn()
{
    if (m_waiting.empty()) {
        ++m_free;
        return;
    }
    auto *next = m_waiting.front();
    m_waiting.pop_front();
    next->hasTurn = true;
    next->turn.cancel();
}
