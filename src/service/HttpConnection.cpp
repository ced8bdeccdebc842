// SPDX-License-Identifier: MIT
#include "service/HttpConnection.h"

#include <curl/curl.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

// An idle connection older than this may have been forgotten by a server or a router on the way, and an upload that
// dies on one is lost. Common servers close after 60 seconds and more.
constexpr long longestIdleSeconds = 20;

struct FreeList {
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};
using HeaderList = std::unique_ptr<curl_slist, FreeList>;

void append(HeaderList &list, const QByteArray &line)
{
    list.reset(curl_slist_append(list.release(), line.constData()));
}

HeaderList headerLines(const HttpRequest &request)
{
    HeaderList list;
    for (const auto &[name, value] : request.headers) {
        append(list, name + ": " + value);
    }
    append(list, "Expect:"); // no waiting for leave to send the body
    const bool hasType = std::ranges::any_of(request.headers, [](const auto &header) {
        return header.first.compare("Content-Type", Qt::CaseInsensitive) == 0;
    });
    if (!hasType) {
        append(list, "Content-Type:"); // none that the library would add by itself
    }
    return list;
}

/// The request's body as it is read. It can't be read twice: where the connection breaks before an answer, the library
/// would send the request again, and a recording sent twice may be charged twice.
struct Upload {
    QByteArrayView rest;

    static size_t read(char *buffer, size_t size, size_t count, void *self)
    {
        auto &rest = static_cast<Upload *>(self)->rest;
        const qsizetype length = std::min<qsizetype>(qsizetype(size) * qsizetype(count), rest.size());
        std::memcpy(buffer, rest.data(), size_t(length));
        rest = rest.sliced(length);
        return size_t(length);
    }

    static int seek(void * /*self*/, curl_off_t /*offset*/, int /*origin*/) { return CURL_SEEKFUNC_FAIL; }
};

/// A reply of the backend has some kilobytes; one that goes on and on would fill the memory.
constexpr qsizetype longestReply = qsizetype{16} * 1024 * 1024;

/// Fewer bytes taken than given end the exchange.
size_t receive(const char *bytes, size_t size, size_t count, void *self)
{
    auto &body = *static_cast<QByteArray *>(self);
    const auto length = qsizetype(size * count);
    if (body.size() + length > longestReply) {
        return 0;
    }
    body.append(bytes, length);
    return size_t(length);
}

} // namespace

struct HttpConnection::Handles {
    CURL *easy = curl_easy_init();
    CURLM *multi = curl_multi_init(); // keeps the connection between exchanges
};

HttpConnection::HttpConnection()
{
    // Once, and not in the threads of the exchanges: it is not safe there.
    [[maybe_unused]] static const CURLcode initialized = curl_global_init(CURL_GLOBAL_DEFAULT);
    m_handles = std::make_unique<Handles>();
}

HttpConnection::~HttpConnection()
{
    curl_easy_cleanup(m_handles->easy);
    curl_multi_cleanup(m_handles->multi);
}

std::optional<HttpResponse> HttpConnection::exchange(const HttpRequest &request, std::chrono::milliseconds timeout)
{
    CURL *const easy = m_handles->easy;
    const HeaderList headers = headerLines(request);
    const QByteArray url = request.url.toEncoded();
    Upload upload{request.body.value_or(QByteArray())};
    HttpResponse response;

    curl_easy_reset(easy);
    curl_easy_setopt(easy, CURLOPT_URL, url.constData());
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_MAXAGE_CONN, longestIdleSeconds);
    curl_easy_setopt(easy, CURLOPT_USERAGENT, "Quillo");
    curl_easy_setopt(easy, CURLOPT_ACCEPT_ENCODING, "gzip");
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L); // a name that is being resolved doesn't hold up the program's end
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, receive);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, &response.body);
    if (request.method == "POST") {
        curl_easy_setopt(easy, CURLOPT_POST, 1L);
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(upload.rest.size()));
        curl_easy_setopt(easy, CURLOPT_READFUNCTION, &Upload::read);
        curl_easy_setopt(easy, CURLOPT_READDATA, &upload);
        curl_easy_setopt(easy, CURLOPT_SEEKFUNCTION, &Upload::seek);
        curl_easy_setopt(easy, CURLOPT_SEEKDATA, &upload);
    }

    curl_multi_add_handle(m_handles->multi, easy);
    const bool isComplete = runToEnd(timeout);
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    curl_multi_remove_handle(m_handles->multi, easy);
    response.status = int(status);
    return isComplete ? std::optional(std::move(response)) : std::nullopt;
}

void HttpConnection::abort()
{
    m_isAborted = true;
    curl_multi_wakeup(m_handles->multi);
}

bool HttpConnection::runToEnd(std::chrono::milliseconds timeout)
{
    using Clock = std::chrono::steady_clock;
    curl_off_t progress = -1;
    auto lastProgress = Clock::now();
    while (!m_isAborted) {
        int running = 0;
        if (curl_multi_perform(m_handles->multi, &running) != CURLM_OK) {
            return false;
        }
        int left = 0;
        if (const CURLMsg *message = curl_multi_info_read(m_handles->multi, &left)) {
            return message->data.result == CURLE_OK;
        }
        curl_off_t sent = 0;
        curl_off_t received = 0;
        curl_easy_getinfo(m_handles->easy, CURLINFO_SIZE_UPLOAD_T, &sent);
        curl_easy_getinfo(m_handles->easy, CURLINFO_SIZE_DOWNLOAD_T, &received);
        const auto now = Clock::now();
        if (std::exchange(progress, sent + received) != sent + received) {
            lastProgress = now;
        }
        const auto remaining = std::chrono::ceil<std::chrono::milliseconds>(lastProgress + timeout - now);
        if (remaining.count() <= 0) {
            return false;
        }
        curl_multi_poll(m_handles->multi, nullptr, 0, int(remaining.count()), nullptr);
    }
    return false;
}
