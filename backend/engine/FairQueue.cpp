// SPDX-License-Identifier: MIT
#include "engine/FairQueue.h"

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/this_coro.hpp>

#include <algorithm>
#include <utility>

net::awaitable<FairQueue::Turn> FairQueue::enter(std::string owner)
{
    if (m_stopping) {
        co_return nullptr;
    }
    if (m_free > 0) {
        --m_free;
        co_return begin();
    }
    Waiting waiting{{co_await net::this_coro::executor, net::steady_timer::time_point::max()}};
    auto place = std::ranges::find(m_owners, owner, &Owner::name);
    if (place == m_owners.end()) {
        place = m_owners.insert(m_owners.end(), {std::move(owner), {}});
    }
    place->waiting.push_back(&waiting);
    boost::system::error_code cancelled;
    co_await waiting.turn.async_wait(net::redirect_error(net::use_awaitable, cancelled));
    co_return waiting.hasTurn ? begin() : nullptr;
}

void FairQueue::stop()
{
    m_stopping = true;
    for (const auto &owner : std::exchange(m_owners, {})) {
        for (auto *waiting : owner.waiting) {
            waiting->turn.cancel();
        }
    }
}

FairQueue::Turn FairQueue::begin()
{
    return {this, [this](void *) { end(); }};
}

void FairQueue::end()
{
    if (m_owners.empty()) {
        ++m_free;
        return;
    }
    auto &owner = m_owners.front();
    auto *next = owner.waiting.front();
    owner.waiting.pop_front();
    if (owner.waiting.empty()) {
        m_owners.pop_front();
    } else {
        m_owners.splice(m_owners.end(), m_owners, m_owners.begin());
    }
    next->hasTurn = true;
    next->turn.cancel();
}
