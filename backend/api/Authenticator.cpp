// SPDX-License-Identifier: MIT
#include "api/Authenticator.h"

#include <boost/beast/core/string.hpp>

net::awaitable<Device> Authenticator::authenticate(const Request &request) const
{
    constexpr std::string_view scheme = "Bearer ";
    const std::string_view header = request.authorization;
    if (!boost::beast::iequals(header.substr(0, scheme.size()), scheme)) {
        throw Refusal::unauthorized();
    }
    const auto credential = QByteArray::fromStdString(request.authorization.substr(scheme.size()));
    const auto device = co_await m_store.run([&](Store &store) { return store.devices.authenticate(credential); });
    if (!device) {
        throw Refusal::unauthorized();
    }
    co_return *device;
}
