// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"
#include "store/StoreThreads.h"

/// Tells which device a request comes from.
class Authenticator {
public:
    /// `store` must outlive it.
    explicit Authenticator(StoreThreads &store) : m_store(store) {}

    /// Throws Refusal, the same whatever is wrong with the credential.
    net::awaitable<Device> authenticate(const Request &request) const;

private:
    StoreThreads &m_store;
};
