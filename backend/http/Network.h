// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>

#include <optional>
#include <string>

/// A block of IP addresses in CIDR notation, such as "10.0.0.0/8" or "2001:db8::/32".
class Network {
public:
    /// A single address is a block, too. Returns nothing when the text is neither.
    static std::optional<Network> parse(const std::string &text);

    bool contains(const boost::asio::ip::address &address) const;

private:
    boost::asio::ip::address m_first;
    unsigned m_prefix = 0; ///< how many bits of an address in the block are those of `m_first`
};

/// An IPv4 address in the form it has without IPv6.
boost::asio::ip::address unmapped(const boost::asio::ip::address &address);

/// Whom limits count by: the address, or the 64 bits that the 2^64 addresses of one IPv6 customer begin with.
std::string customerOf(const boost::asio::ip::address &address);
