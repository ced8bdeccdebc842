// SPDX-License-Identifier: MIT
#include "http/Router.h"

#include "support/Log.h"

#include <algorithm>
#include <set>
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

net::awaitable<std::optional<Reply>> Router::admit(Request &head)
{
    co_return co_await answer(head, [&head](const Route &route) -> net::awaitable<std::optional<Reply>> {
        if (route.guard) {
            head.admission = co_await route.guard(head);
        }
        co_return std::nullopt;
    });
}

net::awaitable<Reply> Router::handle(const Request &request)
{
    auto reply = co_await answer(request, [&request](const Route &route) -> net::awaitable<std::optional<Reply>> {
        co_return co_await route.endpoint(request);
    });
    co_return std::move(*reply);
}

net::awaitable<std::optional<Reply>> Router::answer(const Request &request, Work work) const
{
    const auto pattern = patternOf(request.path);
    const auto isMeant = [&](const Route &route) {
        return route.path == pattern &&
               (route.method == request.method || (route.method == "GET" && request.method == "HEAD"));
    };
    const auto route = std::ranges::find_if(m_routes, isMeant);
    std::optional<Reply> reply;
    try {
        if (route == m_routes.end()) {
            reply = withoutRoute(request, pattern);
        } else {
            reply = co_await work(*route);
        }
    } catch (const Refusal &refusal) {
        reply = refusal.reply();
    } catch (const std::exception &error) {
        logLine(error.what());
        reply = m_refusalOf(error).reply();
    }
    if (reply) {
        reply->route = pattern.empty() ? "-" : pattern;
    }
    co_return reply;
}

Reply Router::withoutRoute(const Request &request, std::string_view pattern) const
{
    const auto isAboutServer = request.method == "OPTIONS" && request.path == "*";
    if (pattern.empty() && !isAboutServer) {
        return Refusal::notFound().reply();
    }
    auto reply = Refusal::methodNotAllowed().reply();
    if (request.method == "OPTIONS") {
        reply = {};
        reply.status = 204;
        reply.contentType.clear();
    }
    reply.headers.emplace_back("Allow", methods(pattern));
    return reply;
}

/// Lists the methods of the routes with this pattern, or of all routes when it is empty.
std::string Router::methods(std::string_view pattern) const
{
    std::set<std::string> methods{"OPTIONS"};
    for (const auto &route : m_routes) {
        if (pattern.empty() || route.path == pattern) {
            methods.emplace(route.method);
        }
    }
    if (methods.contains("GET")) {
        methods.emplace("HEAD");
    }
    std::string list;
    for (const auto &method : methods) {
        list += (list.empty() ? "" : ", ") + method;
    }
    return list;
}
