// SPDX-License-Identifier: MIT
#pragma once

#include "service/HttpTransport.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

/// One HTTP connection, kept open between exchanges for a short while. One exchange at a time, in any thread.
class HttpConnection {
public:
    HttpConnection();
    HttpConnection(const HttpConnection &) = delete;
    HttpConnection &operator=(const HttpConnection &) = delete;
    ~HttpConnection();

    /// Blocks until the response is complete; nothing when none arrives. `timeout`: longest time without progress.
    std::optional<HttpResponse> exchange(const HttpRequest &request, std::chrono::milliseconds timeout);

    /// Ends a running exchange, and every later one, without a response. From any thread.
    void abort();

private:
    struct Handles;

    bool runToEnd(std::chrono::milliseconds timeout);

    std::unique_ptr<Handles> m_handles;
    std::atomic<bool> m_isAborted = false;
};
