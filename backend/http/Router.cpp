// SPDX-License-Identifier: MIT
#include "http/Router.h"

#include "support/Log.h"

#include <algorithm>
#include <utility>

void Router::add(std::string_view method, std::string_view path, Endpoint endpoint, size_t bodyLimit, Guard guard)
{
    m_routes.push_back({method, path, std::move(endpoint), bodyLimit, std::move(guard)});
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

net::awaitable<std::optional<Reply>> Router::admit(const Request &head)
{
    return answer(head, Stage::Header);
}

net::awaitable<Reply> Router::handle(const Request &request)
{
    auto reply = co_await answer(request, Stage::Whole);
    co_return std::move(*reply);
}

/// The reply to a whole request, or to a header that is refused.
net::awaitable<std::optional<Reply>> Router::answer(const Request &request, Stage stage) const
{
    const auto pattern = patternOf(request.path);
    const auto isMeant = [&](const Route &route) { return route.path == pattern && route.method == request.method; };
    const auto route = std::ranges::find_if(m_routes, isMeant);
    std::optional<Reply> reply;
    try {
        if (route == m_routes.end()) {
            reply = refusal(pattern);
        } else if (stage == Stage::Whole) {
            reply = co_await route->endpoint(request);
        } else if (route->guard) {
            co_await route->guard(request);
        }
    } catch (const Refusal &refusal) {
        reply = refusal.reply();
    } catch (const std::exception &error) {
        logLine(error.what());
        reply = Refusal::serverError().reply();
    }
    if (reply) {
        reply->route = pattern.empty() ? "-" : pattern;
    }
    co_return reply;
}

/// Of a method that no route with this pattern has.
Reply Router::refusal(std::string_view pattern) const
{
    if (pattern.empty()) {
        return Refusal::notFound().reply();
    }
    std::string allowed;
    for (const auto &route : m_routes) {
        if (route.path == pattern) {
            allowed += (allowed.empty() ? "" : ", ") + std::string(route.method);
        }
    }
    auto reply = Refusal::methodNotAllowed().reply();
    reply.headers.emplace_back("Allow", allowed);
    return reply;
}
