// SPDX-License-Identifier: MIT
#include "http/Multipart.h"

#include <cstdint> // which rfc7230.hpp of Boost 1.83 needs

#include <boost/beast/core/string.hpp>
#include <boost/beast/http/rfc7230.hpp>

#include <algorithm>
#include <string>

namespace beast = boost::beast;

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr size_t longestBoundary = 70; // RFC 2046
constexpr size_t largestHeaders = 8192;
constexpr size_t mostParts = 16;

/// The parameter `name` of a header value like `form-data; name="file"` whose first word is `kind`.
std::optional<std::string> parameter(std::string_view value, std::string_view kind, std::string_view name)
{
    const auto semicolon = value.find(';');
    if (semicolon == std::string_view::npos || !beast::iequals(value.substr(0, value.find_first_of("; \t")), kind)) {
        return std::nullopt;
    }
    const auto list = value.substr(semicolon);
    std::optional<std::string> found;
    for (const auto &[key, text] : beast::http::param_list{{list.data(), list.size()}}) {
        if (beast::iequals(key, name)) {
            if (found) {
                return std::nullopt;
            }
            found.emplace(text);
        }
    }
    return found;
}

bool consume(std::string_view &text, std::string_view prefix)
{
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

/// Reads header lines up to and with the empty one. The name in the one disposition that there must be.
std::optional<std::string> consumeHeaders(std::string_view &body)
{
    int dispositions = 0;
    std::optional<std::string> name;
    auto left = body.substr(0, largestHeaders);
    const auto available = left.size();
    while (!consume(left, lineEnd)) {
        const auto end = left.find(lineEnd);
        const auto line = left.substr(0, end);
        const auto colon = line.find(':');
        if (end == std::string_view::npos || colon == std::string_view::npos) {
            return std::nullopt;
        }
        if (beast::iequals(line.substr(0, colon), "Content-Disposition")) {
            ++dispositions;
            name = parameter(trimmed(line.substr(colon + 1)), "form-data", "name");
        }
        left.remove_prefix(end + lineEnd.size());
    }
    body.remove_prefix(available - left.size());
    return dispositions == 1 ? name : std::nullopt;
}

/// Reads up to and with the next delimiter, which stands at the beginning of a line, and returns what comes before.
std::optional<std::string_view> consumeUntil(std::string_view &body, std::string_view delimiter)
{
    const auto line = std::string(lineEnd) + std::string(delimiter);
    const auto end = body.find(line);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto before = body.substr(0, end);
    body.remove_prefix(end + line.size());
    return before;
}

/// Reads the rest of a delimiter's line; true for the last one.
std::optional<bool> consumeDelimiterEnd(std::string_view &body)
{
    const auto isLast = consume(body, "--");
    const auto padding = std::min(body.find_first_not_of(" \t"), body.size());
    body.remove_prefix(padding);
    return consume(body, lineEnd) || (isLast && body.empty()) ? std::optional(isLast) : std::nullopt;
}

} // namespace

std::optional<Form> parseForm(std::string_view contentType, std::string_view body)
{
    const auto boundary = parameter(contentType, "multipart/form-data", "boundary");
    if (!boundary || boundary->empty() || boundary->size() > longestBoundary) {
        return std::nullopt;
    }
    const auto delimiter = "--" + *boundary;
    if (!consume(body, delimiter) && !consumeUntil(body, delimiter)) {
        return std::nullopt;
    }
    Form form;
    for (auto isLast = consumeDelimiterEnd(body); isLast; isLast = consumeDelimiterEnd(body)) {
        if (*isLast) {
            return form;
        }
        const auto name = consumeHeaders(body);
        const auto content = name ? consumeUntil(body, delimiter) : std::nullopt;
        if (!content || form.size() == mostParts || !form.emplace(*name, *content).second) {
            break;
        }
    }
    return std::nullopt;
}
