// SPDX-License-Identifier: MIT
#include "http/Multipart.h"

#include <cstdint> // which rfc7230.hpp of Boost 1.83 needs

#include <boost/beast/core/string.hpp>
#include <boost/beast/http/rfc7230.hpp>

#include <string>

namespace beast = boost::beast;

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr size_t longestBoundary = 70; // RFC 2046
constexpr size_t largestHeaders = 8192;

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

/// Reads header lines up to and with the empty one. Whether there is exactly one disposition, and it names "file".
bool consumeHeaders(std::string_view &body)
{
    int dispositions = 0;
    bool namesFile = false;
    auto left = body.substr(0, largestHeaders);
    const auto available = left.size();
    while (!consume(left, lineEnd)) {
        const auto end = left.find(lineEnd);
        const auto line = left.substr(0, end);
        const auto colon = line.find(':');
        if (end == std::string_view::npos || colon == std::string_view::npos) {
            return false;
        }
        if (beast::iequals(line.substr(0, colon), "Content-Disposition")) {
            ++dispositions;
            namesFile = parameter(trimmed(line.substr(colon + 1)), "form-data", "name") == "file";
        }
        left.remove_prefix(end + lineEnd.size());
    }
    body.remove_prefix(available - left.size());
    return dispositions == 1 && namesFile;
}

} // namespace

std::optional<std::string_view> uploadedFile(std::string_view contentType, std::string_view body)
{
    const auto boundary = parameter(contentType, "multipart/form-data", "boundary");
    if (!boundary || boundary->empty() || boundary->size() > longestBoundary) {
        return std::nullopt;
    }
    const auto delimiter = "--" + *boundary;
    if (!consume(body, delimiter) || !consume(body, lineEnd) || !consumeHeaders(body)) {
        return std::nullopt;
    }
    const auto end = body.find("\r\n" + delimiter);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto content = body.substr(0, end);
    body.remove_prefix(end + lineEnd.size() + delimiter.size());
    if (!consume(body, "--") || !(body.empty() || body == lineEnd)) {
        return std::nullopt;
    }
    return content;
}
