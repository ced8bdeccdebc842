// SPDX-License-Identifier: MIT
#pragma once

#include "api/Authenticator.h"
#include "api/Limits.h"
#include "http/Router.h"

/// Registration and balance.
class DeviceEndpoints {
public:
    /// Both must outlive it. `registrationsPerHour` are those of one customer's addresses; 0 is no limit.
    DeviceEndpoints(StoreThreads &store, Limits &limits, int registrationsPerHour);

    void addTo(Router &router);

    /// I/O thread.
    void reload(int registrationsPerHour) { m_registrationsPerHour = registrationsPerHour; }

private:
    net::awaitable<Reply> registerDevice(const Request &request);
    net::awaitable<Reply> balance(const Request &request) const;

    StoreThreads &m_store;
    Authenticator m_authenticator;
    Limits &m_limits;
    int m_registrationsPerHour;
};
