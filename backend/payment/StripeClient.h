// SPDX-License-Identifier: MIT
#pragma once

#include "store/Checkout.h"

#include <chrono>
#include <stdexcept>
#include <string>

struct StripeOptions {
    std::string baseUrl = "https://api.stripe.com"; ///< without a "/" at its end
    std::string key;
    std::string webhookSecret;
    std::chrono::seconds timeout{20};
};

/// Stripe could not be asked. The text is for the operator and holds no secret.
class PaymentError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The one call of Stripe's HTTP API that sells something: a checkout page which Stripe hosts. Any thread; blocks.
class StripeClient {
public:
    struct Order {
        Purchase purchase;
        Pack pack;
        QString currency; ///< ISO 4217, in lower case
        std::string paidUrl;
        std::string cancelledUrl;
    };

    explicit StripeClient(StripeOptions options) : m_options(std::move(options)) {}

    /// The address of the page on which the order is paid. It sells the order once, however often this is called for
    /// the same purchase. Throws PaymentError.
    std::string createSession(const Order &order) const;

private:
    StripeOptions m_options;
};
