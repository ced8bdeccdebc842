// SPDX-License-Identifier: MIT
#pragma once

#include "http/Http.h"

#include <QString>

struct Pack {
    QLatin1String id;
    qint64 tokens;
};

/// The pack of a form's value, or null.
const Pack *findPack(const QString &id);

/// Pages of the development checkout: no script, nothing loaded from elsewhere.
Reply packsPage();
Reply boughtPage(const Pack &pack, qint64 balance);
Reply expiredPage();
