// SPDX-License-Identifier: MIT
#include "support/Curl.h"

#include <new>

namespace {

constexpr size_t largestAnswer = 4UL * 1024 * 1024;

size_t collect(char *data, size_t, size_t size, void *opaque)
{
    auto &answer = *static_cast<std::string *>(opaque);
    if (answer.size() + size > largestAnswer) {
        return 0; // ends the transfer
    }
    answer.append(data, size);
    return size;
}

} // namespace

CurlTransfer newCurlTransfer(const std::string &url, std::string &answer)
{
    static const auto initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    CurlTransfer transfer(initialised == CURLE_OK ? curl_easy_init() : nullptr);
    if (!transfer) {
        throw std::bad_alloc();
    }
    auto *curl = transfer.get();
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, 10L);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, collect);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &answer);
    return transfer;
}
