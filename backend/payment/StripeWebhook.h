// SPDX-License-Identifier: MIT
#pragma once

#include "store/Payment.h"

#include <optional>
#include <string>
#include <string_view>

/// Stripe's message that something was paid or paid back.
struct PaymentEvent {
    Payment payment;
    QString purchaseId; ///< empty when the event is about anything but a payment
    std::optional<Refund> refund = {};
};

/// The event of a message whose Stripe-Signature header (`t=<seconds>,v1=<HMAC-SHA256 of "t.body">`, of which there may
/// be several) was made with `secret` less than five minutes from `now`; otherwise nothing.
std::optional<PaymentEvent> verifyStripeEvent(std::string_view signature, std::string_view body,
                                              const std::string &secret, qint64 now);
