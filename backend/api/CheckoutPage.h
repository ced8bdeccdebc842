// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"
#include "store/Checkout.h"

#include <QString>

#include <vector>

/// What the pages show, and what their forms name: packs by their index.
struct PriceList {
    std::vector<Pack> packs;
    QString currency;          ///< ISO 4217, in lower case
    bool isDevelopment = true; ///< tokens are credited without a payment, and the page says so
};

/// Pages without any script that load nothing from elsewhere, for light and dark screens of any width.
Reply packsPage(const PriceList &prices);
Reply boughtPage(const Pack &pack, qint64 balance);
Reply expiredPage();
Reply paidPage();
Reply cancelledPage();
Reply unpayablePage();

/// A price as people write it, such as "4.99 EUR".
QString priceText(qint64 price, const QString &currency);
