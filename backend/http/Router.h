// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"

#include <vector>

/// Finds the endpoint of a request, and turns what endpoints throw into replies.
class Router : public RequestHandler {
public:
    using Endpoint = std::function<net::awaitable<Reply>(const Request &)>;
    /// Sees the header of a request with a body before that is read, and throws Refusal unless it may be sent.
    using Guard = std::function<net::awaitable<void>(const Request &)>;

    static constexpr size_t smallBody = 16'384;

    /// With "*" at its end, `path` is whatever begins so and no other route names. Texts are literals.
    void add(std::string_view method, std::string_view path, Endpoint endpoint, size_t bodyLimit = smallBody,
             Guard guard = {});

    size_t bodyLimit(std::string_view path) const override;
    net::awaitable<std::optional<Reply>> admit(const Request &head) override;
    net::awaitable<Reply> handle(const Request &request) override;

private:
    struct Route {
        std::string_view method;
        std::string_view path;
        Endpoint endpoint;
        size_t bodyLimit;
        Guard guard;
    };
    enum class Stage { Header, Whole };

    /// The path's pattern, or an empty text.
    std::string_view patternOf(std::string_view path) const;

    net::awaitable<std::optional<Reply>> answer(const Request &request, Stage stage) const;
    Reply refusal(std::string_view pattern) const;

    std::vector<Route> m_routes;
};
