// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Transcriber.h"
#include "http/Http.h"
#include "store/StoreThread.h"

#include <span>
#include <string>

struct ApiOptions {
    std::string publicUrl; ///< under which people reach this server, without a "/" at its end
    qint64 tokensPerSecond = 1;
    size_t largestUpload = 32UL * 1024 * 1024;
    /// The development provider: a checkout page that credits tokens at once, without a payment.
    bool manualCheckout = true;
};

/// The endpoints: which path does what, who may, and what it costs.
class Api : public RequestHandler {
public:
    /// `store` and `transcriber` must outlive it.
    Api(ApiOptions options, StoreThread &store, Transcriber &transcriber);

    size_t bodyLimit(std::string_view path) const override;
    net::awaitable<Reply> handle(const Request &request) override;

private:
    struct Route {
        std::string_view method;
        std::string_view path; ///< with "*" at its end: whatever begins so
        net::awaitable<Reply> (Api::*handler)(const Request &);
    };

    static std::span<const Route> routes();
    static bool matches(const Route &route, std::string_view path);

    net::awaitable<Reply> registerDevice(const Request &request);
    net::awaitable<Reply> transcribe(const Request &request);
    net::awaitable<Reply> balance(const Request &request);
    net::awaitable<Reply> createCheckoutLink(const Request &request);
    net::awaitable<Reply> showCheckout(const Request &request);
    net::awaitable<Reply> buy(const Request &request);

    net::awaitable<Device> authenticate(const Request &request);
    net::awaitable<Samples> decode(std::string_view file);
    net::awaitable<QString> textOf(Recording recording, const Request &request);

    ApiOptions m_options;
    StoreThread &m_store;
    Transcriber &m_transcriber;
};
