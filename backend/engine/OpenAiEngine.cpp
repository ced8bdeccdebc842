// SPDX-License-Identifier: MIT
#include "engine/OpenAiEngine.h"

#include "support/Curl.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <memory>
#include <thread>
#include <utility>

namespace {

/// Reads the recording where it is, instead of copying it into the form.
struct Cursor {
    std::string_view data;
    size_t position = 0;

    static size_t read(char *target, size_t size, size_t count, void *opaque)
    {
        auto &cursor = *static_cast<Cursor *>(opaque);
        const auto copied = cursor.data.copy(target, size * count, cursor.position);
        cursor.position += copied;
        return copied;
    }

    static int seek(void *opaque, curl_off_t offset, int origin)
    {
        if (origin != SEEK_SET) {
            return CURL_SEEKFUNC_CANTSEEK;
        }
        static_cast<Cursor *>(opaque)->position = static_cast<size_t>(offset);
        return CURL_SEEKFUNC_OK;
    }
};

void addField(curl_mime *form, const char *name, const std::string &value)
{
    if (!value.empty()) {
        auto *part = curl_mime_addpart(form);
        curl_mime_name(part, name);
        curl_mime_data(part, value.data(), value.size());
    }
}

CurlForm makeForm(CURL *transfer, Cursor &file, const Recording &recording, const OpenAiOptions &options)
{
    CurlForm form(curl_mime_init(transfer));
    auto *part = curl_mime_addpart(form.get());
    curl_mime_name(part, "file");
    curl_mime_filename(part, "recording.m4a");
    curl_mime_type(part, "audio/mp4");
    curl_mime_data_cb(part, static_cast<curl_off_t>(file.data.size()), Cursor::read, Cursor::seek, nullptr, &file);
    addField(form.get(), "model", options.model);
    addField(form.get(), "language", recording.language.empty() ? options.language : recording.language);
    addField(form.get(), "prompt", recording.prompt.empty() ? options.prompt : recording.prompt);
    addField(form.get(), "response_format", "json");
    return form;
}

std::chrono::milliseconds until(std::chrono::steady_clock::time_point deadline)
{
    return std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
}

} // namespace

struct OpenAiEngine::Answer {
    CURLcode result = CURLE_OK;
    long status = 0;
    curl_off_t retryAfter = 0; ///< in seconds; 0 when the server does not say
    std::string body;

    bool isTemporary() const
    {
        return result == CURLE_COULDNT_CONNECT || result == CURLE_GOT_NOTHING ||
               (result == CURLE_OK && (status == 429 || status >= 500));
    }

    /// Whether the fault is the server's and not the recording's, so that another server may do better.
    bool isFault() const
    {
        return result != CURLE_OK || status == 401 || status == 403 || status == 404 || status == 429 || status >= 500;
    }

    QString text() const
    {
        if (result != CURLE_OK) {
            throw EngineError(std::string("the transcription server can't be used: ") + curl_easy_strerror(result));
        }
        // The body of a refusal may quote the key, so only the status is told.
        if (status != 200) {
            const auto delay = retryAfter > 0 ? std::optional(std::chrono::seconds(retryAfter)) : std::nullopt;
            throw EngineError("the transcription server answered with status " + std::to_string(status), delay);
        }
        const auto text = QJsonDocument::fromJson(QByteArray::fromStdString(body)).object()[QLatin1String("text")];
        if (!text.isString()) {
            throw EngineError("the transcription server's answer has no text");
        }
        return text.toString();
    }
};

OpenAiEngine::OpenAiEngine(OpenAiOptions options) : m_options(std::move(options))
{
    for (const auto &baseUrl : m_options.baseUrls) {
        m_servers.emplace_back().baseUrl = baseUrl;
    }
}

QString OpenAiEngine::transcribe(const Recording &recording)
{
    const auto deadline = std::chrono::steady_clock::now() + m_options.timeout;
    for (int attempt = 1;; ++attempt) {
        Answer answer;
        for (auto *server : servers()) {
            answer = ask(*server, recording, deadline);
            if (!answer.isFault()) {
                server->restsUntil = Deadline();
                return answer.text();
            }
            server->restsUntil = std::chrono::steady_clock::now() + m_options.rest;
        }
        if (!answer.isTemporary() || attempt >= m_options.attempts || !wait(answer, attempt, deadline)) {
            return answer.text();
        }
    }
}

/// Returns the servers in the order in which they are asked: those that rest come last.
std::vector<OpenAiEngine::Server *> OpenAiEngine::servers()
{
    const auto now = std::chrono::steady_clock::now();
    std::vector<Server *> all;
    for (auto &server : m_servers) {
        all.push_back(&server);
    }
    std::stable_partition(all.begin(), all.end(),
                          [now](const Server *server) { return server->restsUntil.load() <= now; });
    return all;
}

/// Returns false, at once, when the delay does not fit in before the deadline.
bool OpenAiEngine::wait(const Answer &answer, int attempt, Deadline deadline) const
{
    std::chrono::milliseconds delay = m_options.firstDelay * (1 << (attempt - 1));
    if (answer.retryAfter > 0) {
        delay = std::chrono::seconds(answer.retryAfter);
    }
    if (delay >= until(deadline)) {
        return false;
    }
    std::this_thread::sleep_for(delay);
    return true;
}

OpenAiEngine::Answer OpenAiEngine::ask(const Server &server, const Recording &recording, Deadline deadline) const
{
    const auto url = server.baseUrl + "/audio/transcriptions";
    Answer answer;
    const auto transfer = newCurlTransfer(url, answer.body);
    auto *curl = transfer.get();
    Cursor cursor{recording.file};
    const auto form = makeForm(curl, cursor, recording, m_options);
    CurlHeaders headers;
    if (!m_options.key.empty()) {
        headers.reset(curl_slist_append(nullptr, ("Authorization: Bearer " + m_options.key).c_str()));
    }
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(std::max<int64_t>(until(deadline).count(), 1)));
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_MIMEPOST, form.get());
    answer.result = curl_easy_perform(curl);
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &answer.status);
    curl_easy_getinfo(curl, CURLINFO_RETRY_AFTER, &answer.retryAfter);
    return answer;
}
