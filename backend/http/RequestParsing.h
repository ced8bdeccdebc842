// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"
#include "http/Network.h"

#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include <span>

using RequestParser = boost::beast::http::request_parser<boost::beast::http::string_body>;

/// Limits the header to 16 KiB, and the body not until the path is known.
void limitHeader(RequestParser &parser);

/// Returns a request target without its query and, when a client writes it as to a proxy, without the server.
std::string pathOf(std::string_view target);

/// Whether every server on the request's way reads it alike: where its body ends, and for which host it is.
bool isUnambiguous(const RequestParser &parser);

bool isTrusted(const net::ip::address &address, std::span<const Network> trustedProxies);

/// The client behind `peer`, when that is one of the trusted proxies and says so: the last address in the
/// X-Forwarded-For header's lines, taken together, that is none of theirs.
net::ip::address clientAddress(const RequestParser &parser, const net::ip::address &peer,
                               std::span<const Network> trustedProxies);

/// Returns the request without its body.
Request headOf(const RequestParser &parser, const net::ip::address &address);
