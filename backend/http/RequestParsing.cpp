// SPDX-License-Identifier: MIT
#include "http/RequestParsing.h"

#include <algorithm>

namespace http = boost::beast::http;

namespace {

constexpr uint32_t largestHeader = 16'384;

std::string text(boost::beast::string_view view)
{
    return {view.data(), view.size()};
}

} // namespace

void limitHeader(RequestParser &parser)
{
    parser.header_limit(largestHeader);
    parser.body_limit(boost::none);
}

std::string pathOf(std::string_view target)
{
    return std::string(target.substr(0, target.find('?')));
}

net::ip::address unmapped(const net::ip::address &address)
{
    return address.is_v6() && address.to_v6().is_v4_mapped()
               ? net::ip::address(net::ip::make_address_v4(net::ip::v4_mapped, address.to_v6()))
               : address;
}

bool isFramedClearly(const RequestParser &parser)
{
    // The parser refuses a length beside "chunked", and takes a request with any other coding to have no body.
    const auto [first, last] = parser.get().equal_range(http::field::transfer_encoding);
    return std::all_of(first, last, [](const auto &line) { return boost::beast::iequals(line.value(), "chunked"); });
}

net::ip::address clientAddress(const RequestParser &parser, const net::ip::address &peer,
                               std::span<const net::ip::address> trustedProxies)
{
    // A proxy may add its entry to the client's own line, or write another below it.
    std::string entries;
    const auto [first, last] = parser.get().equal_range("X-Forwarded-For");
    std::for_each(first, last, [&](const auto &line) { entries += text(line.value()) + ','; });
    auto address = peer;
    while (!entries.empty() && std::ranges::find(trustedProxies, address) != trustedProxies.end()) {
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
            {}};
}

Request takeRequest(RequestParser &parser, const net::ip::address &address)
{
    auto request = headOf(parser, address);
    request.body = std::move(parser.get().body());
    return request;
}
