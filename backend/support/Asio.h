// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/thread_pool.hpp>
#include <boost/asio/use_awaitable.hpp>

#include <type_traits>
#include <utility>

namespace net = boost::asio;

/// Runs `work` on a thread of `pool`; the caller resumes on its own executor with the result, or with what `work`
/// threw. What `work` refers to must outlive it, and the caller's execution context must outlive `pool`, whose thread
/// lets go of it last. The result must be default constructible.
template <class Work> net::awaitable<std::invoke_result_t<Work &>> runOn(net::thread_pool &pool, Work work)
{
    auto task = [work = std::move(work)]() mutable -> net::awaitable<std::invoke_result_t<Work &>> {
        co_return work();
    };
    co_return co_await net::co_spawn(pool, std::move(task), net::use_awaitable);
}
