// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioDecoder.h"
#include "engine/Engine.h"
#include "support/Asio.h"

#include <boost/asio/steady_timer.hpp>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

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

    /// Null when all places are taken, and after stop(). I/O thread.
    Place enter();

    /// `file` must stay until the coroutine ends. Throws AudioError.
    net::awaitable<Inspection> inspect(std::string_view file);

    /// `file` must stay until the coroutine ends. `wanted` is asked on the engine's thread when the turn has come.
    /// Nothing when the engine was not run: it is not wanted any more, or stop() came first. I/O thread. Throws
    /// EngineError.
    net::awaitable<std::optional<QString>> transcribe(std::string_view file, std::function<bool()> wanted);

    /// Lets nothing more in and nothing that waits to the engine; what it has begun goes on. I/O thread.
    void stop();

    State state() const { return m_state; }
    int placesTaken() const { return m_taken; }

private:
    struct Waiting {
        net::steady_timer turn; ///< cancelled when it has come, or never will
        bool hasTurn = false;
    };

    net::awaitable<bool> awaitTurn();
    void endTurn();

    std::unique_ptr<Engine> m_engine;
    std::chrono::seconds m_longest;
    int m_places;
    int m_free; ///< transcriptions that can begin at once
    std::deque<Waiting *> m_waiting;
    std::atomic<bool> m_stopping = false;
    std::atomic<int> m_taken = 0;
    std::atomic<State> m_state = State::Loading;
    net::thread_pool m_decoding;
    net::thread_pool m_transcribing;
};
