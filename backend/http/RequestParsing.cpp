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

net::ip::address clientAddress(const RequestParser &parser, const net::ip::address &peer,
                               std::span<const net::ip::address> trustedProxies)
{
    if (std::ranges::find(trustedProxies, peer) == trustedProxies.end()) {
        return peer;
    }
    // The last entry is the one that the proxy itself wrote.
    const auto header = text(parser.get()["X-Forwarded-For"]);
    const auto start = header.find_last_of(", ");
    boost::system::error_code error;
    const auto address = net::ip::make_address(header.substr(start == std::string::npos ? 0 : start + 1), error);
    return error ? peer : unmapped(address);
}

Request takeRequest(RequestParser &parser, const net::ip::address &address)
{
    auto &message = parser.get();
    return {text(message.method_string()),
            pathOf(text(message.target())),
            address,
            text(message[http::field::authorization]),
            text(message[http::field::content_type]),
            text(message["Stripe-Signature"]),
            std::move(message.body()),
            {}};
}
