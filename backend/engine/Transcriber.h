// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioDecoder.h"
#include "engine/Engine.h"
#include "support/Asio.h"

#include <functional>
#include <memory>

/// Decodes recordings and runs the engine on threads of its own, so that the I/O thread only ever waits in coroutines.
class Transcriber {
public:
    /// Starts to load the engine; transcriptions wait for that.
    Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest);

    /// `file` must stay until the coroutine ends. Throws AudioError.
    net::awaitable<Samples> decode(std::string_view file);

    /// `recording` must stay until the coroutine ends. `wanted` is asked on the engine's thread when the turn has come;
    /// with false the engine is not run and the text is empty. Throws EngineError.
    net::awaitable<QString> transcribe(Recording recording, std::function<bool()> wanted);

private:
    std::unique_ptr<Engine> m_engine;
    std::chrono::seconds m_longest;
    net::thread_pool m_decoding;
    net::thread_pool m_transcribing;
};
