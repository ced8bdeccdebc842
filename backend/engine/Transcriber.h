// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioDecoder.h"
#include "engine/Engine.h"
#include "engine/FairQueue.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

/// What is to be known of a recording before the engine runs.
struct Inspection {
    qint64 startedSeconds = 0;
    bool mayHoldSpeech = false;
};

/// Decodes recordings and runs the engine on threads of its own, so that the I/O thread only ever waits in coroutines.
/// Samples are not kept between the two, so a recording that waits takes no more memory than its file.
class Transcriber {
public:
    using Duration = std::chrono::steady_clock::duration;
    enum class State { Loading, Ready, Failed };

    /// A recording, and for whom it is worked on.
    struct Job {
        std::string_view file;        ///< must stay until the coroutine ends
        std::string owner;            ///< has its turns between those of the others
        std::function<bool()> wanted; ///< any thread
        std::string language;         ///< as in Recording, like the next
        std::string prompt;
        Duration queued{0};                   ///< how long it has waited for its turns so far
        std::chrono::nanoseconds decoding{0}; ///< of a processor
        Duration transcribing{0};
    };

    /// Starts to load the engine; transcriptions wait for that. At most `places` recordings are let in at a time.
    Transcriber(std::unique_ptr<Engine> engine, std::chrono::seconds longest, int places);

    /// One recording's place, held from its inspection to its text.
    using Place = std::shared_ptr<void>;

    /// Returns null when all places are taken, and after stop(). I/O thread.
    Place enter();

    /// Returns nothing when stop() came first. I/O thread. Throws AudioError; `job` tells what it took all the same.
    net::awaitable<std::optional<Inspection>> inspect(Job &job);

    /// Nothing when the engine was not run: it is not wanted any more, or stop() came first. I/O thread. Throws
    /// EngineError.
    net::awaitable<std::optional<QString>> transcribe(Job &job);

    /// Takes effect with the next transcription; as many run at a time as before. The engine must need no preparation.
    /// I/O thread.
    void replaceEngine(std::shared_ptr<Engine> engine) { m_engine = std::move(engine); }

    /// Lets nothing more in, and sends away what waits for the engine; what it has begun goes on. I/O thread.
    void stop();

    State state() const { return m_state; }
    int placesTaken() const { return m_taken; }

private:
    static net::awaitable<FairQueue::Turn> awaitTurn(FairQueue &queue, Job &job);

    std::shared_ptr<Engine> m_engine;
    std::chrono::seconds m_longest;
    int m_places;
    FairQueue m_decodingTurns;
    FairQueue m_transcribingTurns;
    std::atomic<bool> m_stopping = false;
    std::atomic<int> m_taken = 0;
    std::atomic<State> m_state = State::Loading;
    net::thread_pool m_decoding;
    net::thread_pool m_transcribing;
};
