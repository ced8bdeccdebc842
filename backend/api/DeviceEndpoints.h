// SPDX-License-Identifier: MIT
#pragma once

#include "api/Authenticator.h"
#include "http/RateLimiter.h"
#include "http/Router.h"

/// Registration and balance.
class DeviceEndpoints {
public:
    /// `store` must outlive it. `registrationsPerHour` are those of one address; 0 is no limit.
    DeviceEndpoints(StoreThreads &store, int registrationsPerHour);

    void addTo(Router &router);

private:
    net::awaitable<Reply> registerDevice(const Request &request);
    net::awaitable<Reply> balance(const Request &request) const;

    StoreThreads &m_store;
    Authenticator m_authenticator;
    RateLimiter m_registrations;
};
