// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a payment provider says was paid.
struct Payment {
    QString eventId;
    qint64 amount = 0;   ///< in the currency's smallest unit
    QString currency;    ///< ISO 4217, in lower case
    QString intent = {}; ///< the provider's name for it, by which it reports a refund
};

/// What a payment provider says was paid back, or is disputed.
struct Refund {
    QString eventId;
    QString intent;
    qint64 amount = 0; ///< of this payment, in all, in the currency's smallest unit
};
