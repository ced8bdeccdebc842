// SPDX-License-Identifier: MIT
#include "engine/Transcriber.h"

#include "support/Log.h"

#include <boost/asio/post.hpp>

#include <utility>

Transcriber::Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest)
    : m_engine(std::move(engine)),
      m_longest(longest),
      m_decoding(2),
      m_transcribing(static_cast<size_t>(m_engine->concurrency()))
{
    net::post(m_transcribing, [this] {
        try {
            m_engine->prepare();
        } catch (const EngineError &error) {
            logLine(error.what());
        }
    });
}

net::awaitable<Samples> Transcriber::decode(std::string_view file)
{
    return runOn(m_decoding, [file, longest = m_longest] { return decodeAudio(file, longest); });
}

net::awaitable<QString> Transcriber::transcribe(Recording recording, std::function<bool()> wanted)
{
    return runOn(m_transcribing, [this, recording, wanted = std::move(wanted)] {
        return wanted() ? m_engine->transcribe(recording) : QString();
    });
}
