// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"

#include <chrono>
#include <string>

struct OpenAiOptions {
    std::string baseUrl = {}; ///< such as "https://api.openai.com/v1", without a "/" at its end
    std::string model;
    std::string key = {};      ///< may be empty: no authorization is sent then
    std::string language = {}; ///< ISO 639-1, such as "de"; empty: the server recognises it
    std::string prompt = {};   ///< spellings and style for the server to follow; may be empty
    /// For a whole transcription with its repetitions; less than the 120 s after which the desktop program gives up.
    std::chrono::milliseconds timeout{110'000};
    int attempts = 3;
    int concurrency = 8;
    /// Before the second attempt, when the server names no delay of its own; twice as long before each further one.
    std::chrono::milliseconds firstDelay{500};
};

/// Any server with OpenAI's transcription endpoint: POST {baseUrl}/audio/transcriptions. The uploaded file is passed on
/// as it is. Certificates are verified and redirects are not followed, so the key reaches the configured server only.
/// Status 429, 5xx and a connection that can't be made are tried again, after the delay the server asks for.
class OpenAiEngine : public Engine {
public:
    explicit OpenAiEngine(OpenAiOptions options);

    int concurrency() const override { return m_options.concurrency; }
    QString transcribe(const Recording &recording) override;

private:
    struct Answer;
    using Deadline = std::chrono::steady_clock::time_point;

    Answer ask(const Recording &recording, Deadline deadline) const;
    bool wait(const Answer &answer, int attempt, Deadline deadline) const;

    OpenAiOptions m_options;
};
