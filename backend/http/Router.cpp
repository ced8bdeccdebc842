// SPDX-License-Identifier: MIT
#include "http/Router.h"

#include "support/Log.h"

#include <algorithm>
#include <utility>

void Router::add(std::string_view method, std::string_view path, Endpoint endpoint, size_t bodyLimit)
{
    m_routes.push_back({method, path, std::move(endpoint), bodyLimit});
}

std::string_view Router::patternOf(std::string_view path) const
{
    std::string_view found;
    for (const auto &route : m_routes) {
        if (route.path == path) {
            return route.path;
        }
        if (route.path.ends_with('*') && path.starts_with(route.path.substr(0, route.path.size() - 1))) {
            found = route.path;
        }
    }
    return found;
}

size_t Router::bodyLimit(std::string_view path) const
{
    const auto found = std::ranges::find(m_routes, patternOf(path), &Route::path);
    return found == m_routes.end() ? smallBody : found->bodyLimit;
}

net::awaitable<Reply> Router::handle(const Request &request)
{
    const auto pattern = patternOf(request.path);
    Reply reply;
    try {
        const Route *chosen = nullptr;
        std::string allowed;
        for (const auto &route : m_routes) {
            if (route.path == pattern) {
                allowed += (allowed.empty() ? "" : ", ") + std::string(route.method);
                chosen = route.method == request.method ? &route : chosen;
            }
        }
        if (chosen) {
            reply = co_await chosen->endpoint(request);
        } else if (pattern.empty()) {
            reply = Refusal::notFound().reply();
        } else {
            reply = Refusal::methodNotAllowed().reply();
            reply.headers.emplace_back("Allow", allowed);
        }
    } catch (const Refusal &refusal) {
        reply = refusal.reply();
    } catch (const std::exception &error) {
        logLine(error.what());
        reply = Refusal::serverError().reply();
    }
    reply.route = pattern.empty() ? "-" : pattern;
    co_return reply;
}
