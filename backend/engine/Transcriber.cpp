// SPDX-License-Identifier: MIT
#include "engine/Transcriber.h"

#include "audio/SpeechGate.h"
#include "support/Log.h"

#include <boost/asio/post.hpp>

#include <utility>

Transcriber::Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest, int places)
    : m_engine(std::move(engine)),
      m_longest(longest),
      m_places(places),
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
    if (m_taken >= m_places) {
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

net::awaitable<QString> Transcriber::transcribe(std::string_view file, std::function<bool()> wanted)
{
    return runOn(m_transcribing, [this, file, wanted = std::move(wanted)] {
        return wanted() ? m_engine->transcribe({file, m_longest}) : QString();
    });
}
