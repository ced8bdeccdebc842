// SPDX-License-Identifier: MIT
#include "http/Network.h"

#include <boost/asio/ip/network_v6.hpp>

#include <algorithm>
#include <charconv>
#include <vector>

namespace ip = boost::asio::ip;

namespace {

constexpr unsigned customerPrefix = 64;

std::vector<unsigned char> bytesOf(const ip::address &address)
{
    const auto copy = [](const auto &bytes) { return std::vector<unsigned char>(bytes.begin(), bytes.end()); };
    return address.is_v4() ? copy(address.to_v4().to_bytes()) : copy(address.to_v6().to_bytes());
}

} // namespace

std::optional<Network> Network::parse(const std::string &text)
{
    const auto slash = text.find('/');
    boost::system::error_code error;
    Network network;
    network.m_first = ip::make_address(text.substr(0, slash), error);
    const auto longest = network.m_first.is_v4() ? 32U : 128U;
    network.m_prefix = longest;
    if (slash != std::string::npos) {
        const auto *const end = text.data() + text.size();
        const auto result = std::from_chars(text.data() + slash + 1, end, network.m_prefix);
        if (result.ec != std::errc() || result.ptr != end) {
            return std::nullopt;
        }
    }
    return error || network.m_prefix > longest ? std::nullopt : std::optional(network);
}

bool Network::contains(const ip::address &address) const
{
    if (address.is_v4() != m_first.is_v4()) {
        return false;
    }
    const auto ours = bytesOf(m_first);
    const auto theirs = bytesOf(address);
    const auto whole = m_prefix / 8;
    const auto rest = 8 - m_prefix % 8;
    return std::equal(ours.begin(), ours.begin() + whole, theirs.begin()) &&
           (m_prefix % 8 == 0 || ours[whole] >> rest == theirs[whole] >> rest);
}

ip::address unmapped(const ip::address &address)
{
    return address.is_v6() && address.to_v6().is_v4_mapped()
               ? ip::address(ip::make_address_v4(ip::v4_mapped, address.to_v6()))
               : address;
}

std::string customerOf(const ip::address &address)
{
    return address.is_v4() ? address.to_string()
                           : ip::make_network_v6(address.to_v6(), customerPrefix).canonical().to_string();
}
