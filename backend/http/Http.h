// SPDX-License-Identifier: MIT
#pragma once

#include "support/Asio.h"

#include <QJsonObject>
#include <boost/asio/ip/address.hpp>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// One request, read whole, or its header only. It outlives the coroutine that handles it.
struct Request {
    std::string method;
    std::string path;         ///< without the query
    net::ip::address address; ///< the client's, also behind a trusted proxy
    std::string authorization;
    std::string contentType;
    std::string signature; ///< of a payment provider's message
    std::string body;
    /// What RequestHandler::admit() keeps for the request until there is a reply.
    std::shared_ptr<void> admission;
    /// Whether the client still waits for the reply; any thread.
    std::function<bool()> connected;
};

struct Reply {
    unsigned status = 200;
    std::string contentType = "application/json";
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;
    /// What the access log names instead of the path, which may hold a checkout link's token.
    std::string route = "-";
    QJsonObject log = {}; ///< what the access log tells of the request besides; nothing secret
    /// Called once when the reply has been sent, with true, or could not be.
    std::function<net::awaitable<void>(bool delivered)> sent;
};

/// A request that is answered with an error document. Both texts are literals.
class Refusal {
public:
    Refusal(unsigned status, std::string_view code, std::string_view message)
        : m_status(status), m_code(code), m_message(message)
    {
    }

    Reply reply() const;

    /// The same, to be tried again after this time.
    Refusal retryAfter(std::chrono::seconds delay) const
    {
        auto refusal = *this;
        refusal.m_retryAfter = delay;
        return refusal;
    }

    static Refusal badRequest() { return {400, "bad_request", "The request could not be understood."}; }
    static Refusal unauthorized() { return {401, "unauthorized", "This device is not known."}; }
    static Refusal insufficientTokens() { return {402, "insufficient_tokens", "You're out of tokens."}; }
    static Refusal notFound() { return {404, "not_found", "There is nothing at this address."}; }
    static Refusal methodNotAllowed() { return {405, "method_not_allowed", "This can't be done here."}; }
    static Refusal tooLarge() { return {413, "payload_too_large", "This recording is too long."}; }
    static Refusal unsupportedAudio() { return {415, "unsupported_audio", "This recording could not be read."}; }
    static Refusal tooManyRegistrations()
    {
        return {429, "too_many_registrations", "Too many new devices. Please try again later."};
    }
    static Refusal tooManyRequests()
    {
        return {429, "too_many_requests", "Too many requests. Please try again in a moment."};
    }
    static Refusal serverError() { return {500, "server_error", "Something went wrong. Please try again."}; }
    static Refusal unavailable()
    {
        return Refusal(503, "unavailable", "The server is unavailable right now. Please try again later.")
            .retryAfter(std::chrono::seconds(10));
    }
    static Refusal engineUnavailable()
    {
        return {503, "engine_unavailable", "Transcription is unavailable right now. Please try again later."};
    }

    /// For any request, before its body is read.
    static Refusal serverBusy()
    {
        return Refusal(503, "server_busy", "The server is busy. Please try again in a moment.")
            .retryAfter(std::chrono::seconds(5));
    }

    static Refusal engineBusy() { return {503, "engine_busy", "The server is busy. Please try again in a moment."}; }

private:
    unsigned m_status;
    std::string_view m_code;
    std::string_view m_message;
    std::optional<std::chrono::seconds> m_retryAfter;
};

Reply jsonReply(const QJsonObject &document, unsigned status = 200);

/// What a server does with its requests; called on the I/O thread.
class RequestHandler {
public:
    virtual ~RequestHandler() = default;

    /// The most bytes that a body for this path may have.
    virtual size_t bodyLimit(std::string_view path) const = 0;

    /// Asked when a request's header has been read and a body is to come, so that nobody can make the server hold what
    /// it will refuse: the refusal, or nothing. May set the header's `admission`. Never fails.
    virtual net::awaitable<std::optional<Reply>> admit(Request &) { co_return std::nullopt; }

    /// Never fails: what goes wrong is a reply too.
    virtual net::awaitable<Reply> handle(const Request &request) = 0;
};
