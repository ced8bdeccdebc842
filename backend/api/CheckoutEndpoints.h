// SPDX-License-Identifier: MIT
#pragma once

#include "api/Authenticator.h"
#include "api/CheckoutPage.h"
#include "http/Router.h"
#include "payment/StripeClient.h"

struct CheckoutOptions {
    enum class Provider {
        None,   ///< nothing is sold
        Manual, ///< for development: tokens are credited at once, without a payment
        Stripe,
    };

    Provider provider = Provider::Manual;
    std::vector<Pack> packs{{3600, 199}, {36'000, 1499}, {360'000, 9999}};
    QString currency = QStringLiteral("eur");
    StripeOptions stripe = {};
    std::string publicUrl = {}; ///< under which people reach this server, without a "/" at its end
};

/// Links, the pages behind them, and the payment provider's messages.
class CheckoutEndpoints {
public:
    /// `store` must outlive it.
    CheckoutEndpoints(CheckoutOptions options, StoreThreads &store, WallClock clock);

    void addTo(Router &router);

    /// Takes over Stripe's keys. I/O thread.
    void reload(const StripeOptions &stripe);

private:
    net::awaitable<Reply> createLink(const Request &request);
    net::awaitable<Reply> showPacks(const Request &request);
    net::awaitable<Reply> buy(const Request &request);
    net::awaitable<Reply> pay(QByteArray token, Purchase purchase, Pack pack);
    net::awaitable<Reply> receiveEvent(const Request &request);

    CheckoutOptions m_options;
    PriceList m_prices;
    StoreThreads &m_store;
    WallClock m_clock;
    Authenticator m_authenticator;
    std::shared_ptr<const StripeClient> m_stripe; ///< kept by who uses it on another thread
    net::thread_pool m_payments{2};
};
