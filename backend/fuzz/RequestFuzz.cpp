// SPDX-License-Identifier: MIT
// Whatever a client may send, from the first byte of its header to the form in its body.
#include "http/Multipart.h"
#include "http/RequestParsing.h"
#include "payment/StripeWebhook.h"

#include <boost/asio/buffer.hpp>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr size_t bodyLimit = 100'000;

/// Feeds the bytes in pieces, as a network would; the first byte says how long they are. Whether the request is whole.
bool feed(RequestParser &parser, std::string_view bytes)
{
    const auto piece = bytes.empty() ? 1 : 1 + static_cast<size_t>(static_cast<unsigned char>(bytes.front()));
    bytes.remove_prefix(std::min<size_t>(1, bytes.size()));
    std::string unread;
    while (!parser.is_done() && !bytes.empty()) {
        unread += bytes.substr(0, piece);
        bytes.remove_prefix(std::min(piece, bytes.size()));
        boost::beast::error_code error;
        const auto used = parser.put(boost::asio::buffer(unread), error);
        if (error && error != boost::beast::http::error::need_more) {
            return false;
        }
        unread.erase(0, used);
    }
    return parser.is_done();
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the library calls it by this name
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view input(reinterpret_cast<const char *>(data), size);
    RequestParser parser;
    limitHeader(parser);
    parser.body_limit(bodyLimit);
    if (!feed(parser, input)) {
        return 0;
    }
    const auto proxy = Network::parse("127.0.0.0/8");
    const auto address = clientAddress(parser, net::ip::make_address("127.0.0.1"), std::span(&*proxy, 1));
    auto request = headOf(parser, address);
    request.body = std::move(parser.get().body());
    if (request.path.find('?') != std::string::npos || request.body.size() > bodyLimit) {
        std::abort();
    }
    for (const auto &[name, content] : parseForm(request.contentType, request.body).value_or(Form())) {
        if (content.data() < request.body.data() ||
            content.data() + content.size() > request.body.data() + request.body.size()) {
            std::abort();
        }
    }
    if (verifyStripeEvent(request.signature, request.body, "a secret that the input does not know", 0)) {
        std::abort();
    }
    return 0;
}
