// SPDX-License-Identifier: MIT
#include "http/RateLimiter.h"

#include <algorithm>

namespace {

boost::asio::ip::address networkOf(const boost::asio::ip::address &address)
{
    if (!address.is_v6()) {
        return address;
    }
    auto bytes = address.to_v6().to_bytes();
    std::fill(bytes.begin() + bytes.size() / 2, bytes.end(), 0);
    return boost::asio::ip::address_v6(bytes);
}

} // namespace

std::optional<std::chrono::seconds> RateLimiter::take(const boost::asio::ip::address &address, Clock::time_point now)
{
    if (m_burst == 0) {
        return std::nullopt;
    }
    if (now >= m_nextCleaning) {
        std::erase_if(m_full, [now](const auto &entry) { return entry.second <= now; });
        m_nextCleaning = now + m_pace;
    }
    auto &full = m_full[networkOf(address)];
    const auto next = std::max(full, now) + m_pace;
    if (const auto excess = next - now - m_burst * m_pace; excess > Clock::duration::zero()) {
        return std::chrono::ceil<std::chrono::seconds>(excess);
    }
    full = next;
    return std::nullopt;
}
