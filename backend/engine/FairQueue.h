// SPDX-License-Identifier: MIT
#pragma once

#include "support/Asio.h"

#include <boost/asio/steady_timer.hpp>

#include <deque>
#include <list>
#include <memory>
#include <string>

/// Turns at something that few can use at a time. Who waits is served round robin by owner, so that whoever brings much
/// waits for it alone. I/O thread.
class FairQueue {
public:
    /// `turns` can be had at the same time.
    explicit FairQueue(int turns) : m_free(turns) {}

    /// A turn ends with its last copy, which must go before the queue does.
    using Turn = std::shared_ptr<void>;

    /// Waits for a turn. Returns null when stop() came first.
    net::awaitable<Turn> enter(std::string owner);

    /// Sends away who waits and who comes; the turns that were given go on.
    void stop();

private:
    struct Waiting {
        net::steady_timer turn; ///< cancelled when it has come, or never will
        bool hasTurn = false;
    };
    struct Owner {
        std::string name;
        std::deque<Waiting *> waiting;
    };

    Turn begin();
    void end();

    int m_free;
    bool m_stopping = false;
    std::list<Owner> m_owners; ///< those who wait; the first is next
};
