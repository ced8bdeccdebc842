// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioDecoder.h"
#include "engine/Engine.h"
#include "support/Asio.h"

#include <atomic>
#include <functional>
#include <memory>

/// What is to be known of a recording before the engine runs.
struct Inspection {
    qint64 startedSeconds = 0;
    bool mayHoldSpeech = false;
};

/// Decodes recordings and runs the engine on threads of its own, so that the I/O thread only ever waits in coroutines.
/// Samples are not kept between the two, so a recording that waits takes no more memory than its file.
class Transcriber {
public:
    enum class State { Loading, Ready, Failed };

    /// Starts to load the engine; transcriptions wait for that. At most `places` recordings are let in at a time.
    Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest, int places);

    /// One recording's place, held from its inspection to its text.
    using Place = std::shared_ptr<void>;

    /// Null when all places are taken. I/O thread.
    Place enter();

    /// `file` must stay until the coroutine ends. Throws AudioError.
    net::awaitable<Inspection> inspect(std::string_view file);

    /// `file` must stay until the coroutine ends. `wanted` is asked on the engine's thread when the turn has come; with
    /// false the engine is not run and the text is empty. Throws EngineError.
    net::awaitable<QString> transcribe(std::string_view file, std::function<bool()> wanted);

    State state() const { return m_state; }
    int placesTaken() const { return m_taken; }

private:
    std::unique_ptr<Engine> m_engine;
    std::chrono::seconds m_longest;
    int m_places;
    std::atomic<int> m_taken = 0;
    std::atomic<State> m_state = State::Loading;
    net::thread_pool m_decoding;
    net::thread_pool m_transcribing;
};
