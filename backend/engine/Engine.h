// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// One recording that was decoded before, so it is sound; its owner keeps it alive during a transcription.
struct Recording {
    std::string_view file;        ///< the MPEG-4 file as it was uploaded
    std::chrono::seconds longest; ///< at least its duration
    /// What an engine that knows nothing to do with them ignores. Either may be empty.
    std::string language = {}; ///< spoken in it, BCP 47, such as "de"
    std::string prompt = {};   ///< spellings and style to follow
    /// Whether anybody still waits for the text; any thread.
    std::function<bool()> wanted = [] { return true; };
};

/// The engine can't transcribe now. The text is for the operator; it holds no secret and nothing that was said.
class EngineError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    EngineError(const std::string &what, std::optional<std::chrono::seconds> retryAfter)
        : std::runtime_error(what), m_retryAfter(retryAfter)
    {
    }

    /// When it may be able to again, if it knows.
    std::optional<std::chrono::seconds> retryAfter() const { return m_retryAfter; }

private:
    std::optional<std::chrono::seconds> m_retryAfter;
};

/// What turns speech into text. Used from threads of its own, never from the I/O thread, so it may block.
class Engine {
public:
    virtual ~Engine() = default;

    /// How many transcriptions may run at the same time, each on its own thread; further ones queue.
    virtual int concurrency() const = 0;

    /// Loads what takes time. Called once, before the first transcription, on a thread that transcribes.
    virtual void prepare() {}

    /// The words spoken, or an empty text. Throws EngineError.
    virtual QString transcribe(const Recording &recording) = 0;
};
