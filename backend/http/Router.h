// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"

#include <vector>

/// Finds the endpoint of a request, and turns what endpoints throw into replies.
class Router : public RequestHandler {
public:
    using Endpoint = std::function<net::awaitable<Reply>(const Request &)>;

    static constexpr size_t smallBody = 16'384;

    /// With "*" at its end, `path` is whatever begins so and no other route names. Texts are literals.
    void add(std::string_view method, std::string_view path, Endpoint endpoint, size_t bodyLimit = smallBody);

    size_t bodyLimit(std::string_view path) const override;
    net::awaitable<Reply> handle(const Request &request) override;

private:
    struct Route {
        std::string_view method;
        std::string_view path;
        Endpoint endpoint;
        size_t bodyLimit;
    };

    /// The path's pattern, or an empty text.
    std::string_view patternOf(std::string_view path) const;

    std::vector<Route> m_routes;
};
