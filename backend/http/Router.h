// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"

#include <vector>

/// Finds the endpoint of a request, and turns what endpoints throw into replies. HEAD is answered wherever GET is, and
/// OPTIONS everywhere.
class Router : public RequestHandler {
public:
    using Endpoint = std::function<net::awaitable<Reply>(const Request &)>;
    /// Sees the header of a request with a body before that is read, and throws Refusal unless it may be sent. What it
    /// returns becomes the request's `admission`.
    using Guard = std::function<net::awaitable<std::shared_ptr<void>>(const Request &)>;

    /// What a client is told when its endpoint failed with anything but a Refusal.
    using RefusalOf = Refusal (*)(const std::exception &);

    explicit Router(RefusalOf refusalOf) : m_refusalOf(refusalOf) {}

    static constexpr size_t smallBody = 16'384;

    /// With "*" at its end, `path` is whatever begins so and no other route names. Texts are literals.
    void add(std::string_view method, std::string_view path, Endpoint endpoint, size_t bodyLimit = smallBody,
             Guard guard = {});

    size_t bodyLimit(std::string_view path) const override;
    net::awaitable<std::optional<Reply>> admit(Request &head) override;
    net::awaitable<Reply> handle(const Request &request) override;

private:
    struct Route {
        std::string_view method;
        std::string_view path;
        Endpoint endpoint;
        size_t bodyLimit;
        Guard guard;
    };
    /// The path's pattern, or an empty text.
    std::string_view patternOf(std::string_view path) const;

    /// The reply of `work` on the request's route, or to a request without one; nothing when `work` has none.
    using Work = std::function<net::awaitable<std::optional<Reply>>(const Route &)>;
    net::awaitable<std::optional<Reply>> answer(const Request &request, Work work) const;
    Reply withoutRoute(const Request &request, std::string_view pattern) const;
    std::string methods(std::string_view pattern) const;

    RefusalOf m_refusalOf;
    std::vector<Route> m_routes;
};
