// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a payment provider says was paid.
struct Payment {
    QString eventId;
    qint64 amount = 0; ///< in the currency's smallest unit
    QString currency;  ///< ISO 4217, in lower case
};
