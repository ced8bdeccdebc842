// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"

#include <atomic>
#include <chrono>
#include <list>
#include <string>
#include <vector>

struct OpenAiOptions {
    /// Such as "https://api.openai.com/v1", without a "/" at their ends. The first one that works is asked.
    std::vector<std::string> baseUrls = {};
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
    std::chrono::seconds rest{30}; ///< for which the others are asked before a server that failed
};

/// Any server with OpenAI's transcription endpoint: POST {baseUrl}/audio/transcriptions. The uploaded file is passed on
/// as it is. Certificates are verified and redirects are not followed, so the key reaches the configured server only.
/// Status 429, 5xx and a connection that can't be made are tried again: with the next server at once, and when none is
/// left, after the delay that the last one asks for.
class OpenAiEngine : public Engine {
public:
    explicit OpenAiEngine(OpenAiOptions options);

    int concurrency() const override { return m_options.concurrency; }
    QString transcribe(const Recording &recording) override;

private:
    struct Answer;
    using Deadline = std::chrono::steady_clock::time_point;
    struct Server {
        std::string baseUrl;
        std::atomic<Deadline> restsUntil = Deadline();
    };

    std::vector<Server *> servers();
    Answer ask(const Server &server, const Recording &recording, Deadline deadline) const;
    bool wait(const Answer &answer, int attempt, Deadline deadline) const;

    OpenAiOptions m_options;
    std::list<Server> m_servers;
};
