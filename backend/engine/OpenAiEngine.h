// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"

#include <chrono>
#include <string>

struct OpenAiOptions {
    std::string baseUrl; ///< such as "https://api.openai.com/v1", without a "/" at its end
    std::string model;
    std::string key; ///< may be empty: no authorization is sent then
    /// For a whole transcription; less than the 120 s after which the desktop program gives up.
    std::chrono::seconds timeout{110};
};

/// Any server with OpenAI's transcription endpoint: POST {baseUrl}/audio/transcriptions. The uploaded file is passed on
/// as it is. Certificates are verified and redirects are not followed, so the key reaches the configured server only.
class OpenAiEngine : public Engine {
public:
    explicit OpenAiEngine(OpenAiOptions options);

    int concurrency() const override { return 8; }
    QString transcribe(const Recording &recording) override;

private:
    OpenAiOptions m_options;
};
