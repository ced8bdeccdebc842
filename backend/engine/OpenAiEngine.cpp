// SPDX-License-Identifier: MIT
#include "engine/OpenAiEngine.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <curl/curl.h>

#include <memory>
#include <utility>

namespace {

constexpr size_t largestAnswer = 4UL * 1024 * 1024;

template <auto Free> struct Deleter {
    template <class T> void operator()(T *object) const { Free(object); }
};
using Transfer = std::unique_ptr<CURL, Deleter<curl_easy_cleanup>>;
using Form = std::unique_ptr<curl_mime, Deleter<curl_mime_free>>;
using Headers = std::unique_ptr<curl_slist, Deleter<curl_slist_free_all>>;

size_t collect(char *data, size_t, size_t size, void *opaque)
{
    auto &answer = *static_cast<std::string *>(opaque);
    if (answer.size() + size > largestAnswer) {
        return 0; // ends the transfer
    }
    answer.append(data, size);
    return size;
}

void addField(curl_mime *form, const char *name, const std::string &value)
{
    auto *part = curl_mime_addpart(form);
    curl_mime_name(part, name);
    curl_mime_data(part, value.data(), value.size());
}

Form makeForm(CURL *transfer, const Recording &recording, const std::string &model)
{
    Form form(curl_mime_init(transfer));
    auto *file = curl_mime_addpart(form.get());
    curl_mime_name(file, "file");
    curl_mime_filename(file, "recording.m4a");
    curl_mime_type(file, "audio/mp4");
    curl_mime_data(file, recording.file.data(), recording.file.size());
    addField(form.get(), "model", model);
    addField(form.get(), "response_format", "json");
    return form;
}

} // namespace

OpenAiEngine::OpenAiEngine(OpenAiOptions options) : m_options(std::move(options))
{
    static const auto initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (initialised != CURLE_OK) {
        throw EngineError("libcurl could not be initialised");
    }
}

QString OpenAiEngine::transcribe(const Recording &recording)
{
    const Transfer transfer(curl_easy_init());
    auto *curl = transfer.get();
    if (!curl) {
        throw EngineError("libcurl has no memory");
    }
    const auto url = m_options.baseUrl + "/audio/transcriptions";
    const auto form = makeForm(curl, recording, m_options.model);
    Headers headers;
    if (!m_options.key.empty()) {
        headers.reset(curl_slist_append(nullptr, ("Authorization: Bearer " + m_options.key).c_str()));
    }
    std::string answer;
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, 10L);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT, static_cast<long>(m_options.timeout.count()));
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_MIMEPOST, form.get());
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, collect);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &answer);

    if (const auto result = curl_easy_perform(curl); result != CURLE_OK) {
        throw EngineError(std::string("the transcription server can't be used: ") + curl_easy_strerror(result));
    }
    long status = 0;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
    // The body of a refusal may quote the key, so only the status is told.
    if (status != 200) {
        throw EngineError("the transcription server answered with status " + std::to_string(status));
    }
    const auto text = QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object()[QLatin1String("text")];
    if (!text.isString()) {
        throw EngineError("the transcription server's answer has no text");
    }
    return text.toString();
}
