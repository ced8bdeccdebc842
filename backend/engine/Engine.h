// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string_view>

/// One recording in both forms an engine may want; the owner keeps both alive during a transcription.
struct Recording {
    std::string_view file;            ///< the MPEG-4 file as it was uploaded
    std::span<const int16_t> samples; ///< mono, `speechRate`
};

/// The engine can't transcribe now. The text is for the operator; it holds no secret and nothing that was said.
class EngineError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
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
