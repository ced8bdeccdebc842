// SPDX-License-Identifier: MIT
#include "http/RequestParsing.h"

#include <algorithm>
#include <cctype>

namespace http = boost::beast::http;

namespace {

constexpr uint32_t largestHeader = 16'384;

std::string text(boost::beast::string_view view)
{
    return {view.data(), view.size()};
}

/// A name or an address, with or without a port; or nothing, as in requests that name no host.
bool isHost(std::string_view value)
{
    const auto isAllowed = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 ||
               std::string_view("-._~%:[]").find(c) != std::string_view::npos;
    };
    return std::ranges::all_of(value, isAllowed);
}

} // namespace

void limitHeader(RequestParser &parser)
{
    parser.header_limit(largestHeader);
    parser.body_limit(boost::none);
}

std::string pathOf(std::string_view target)
{
    for (const std::string_view scheme : {"http://", "https://"}) {
        if (boost::beast::iequals(target.substr(0, scheme.size()), scheme)) {
            target.remove_prefix(std::min(target.find_first_of("/?", scheme.size()), target.size()));
        }
    }
    const auto path = target.substr(0, target.find('?'));
    return path.empty() ? "/" : std::string(path);
}

bool isUnambiguous(const RequestParser &parser)
{
    const auto &message = parser.get();
    const auto codings = message.count(http::field::transfer_encoding);
    const auto hosts = message.count(http::field::host);
    constexpr unsigned hostRequired = 11; // HTTP/1.1
    // The parser refuses a length beside "chunked", and takes a request with any other coding to have no body.
    return message.count(http::field::content_length) <= 1 && codings <= 1 &&
           (codings == 0 || (message.version() >= hostRequired &&
                             boost::beast::iequals(message[http::field::transfer_encoding], "chunked"))) &&
           hosts <= 1 && (hosts == 1 || message.version() < hostRequired) && isHost(text(message[http::field::host]));
}

bool isTrusted(const net::ip::address &address, std::span<const Network> trustedProxies)
{
    return std::ranges::any_of(trustedProxies, [&](const Network &network) { return network.contains(address); });
}

net::ip::address clientAddress(const RequestParser &parser, const net::ip::address &peer,
                               std::span<const Network> trustedProxies)
{
    // A proxy may add its entry to the client's own line, or write another below it.
    std::string entries;
    const auto [first, last] = parser.get().equal_range("X-Forwarded-For");
    std::for_each(first, last, [&](const auto &line) { entries += text(line.value()) + ','; });
    auto address = peer;
    while (!entries.empty() && isTrusted(address, trustedProxies)) {
        entries.resize(entries.find_last_not_of(", \t") + 1);
        const auto start = entries.find_last_of(", \t") + 1;
        boost::system::error_code error;
        const auto next = net::ip::make_address(entries.substr(start), error);
        if (error) {
            break;
        }
        address = unmapped(next);
        entries.resize(start);
    }
    return address;
}

Request headOf(const RequestParser &parser, const net::ip::address &address)
{
    const auto &message = parser.get();
    return {text(message.method_string()),
            pathOf(text(message.target())),
            address,
            text(message[http::field::authorization]),
            text(message[http::field::content_type]),
            text(message["Stripe-Signature"]),
            {},
            {},
            {}};
}
