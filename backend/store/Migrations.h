// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Each entry brings the tables from its index to the next version. Entries that were released never change. "{blob}",
/// "{serial}" (a primary key that counts by itself) and "{unlogged}" are spelled differently by the databases.
const QList<QStringList> &migrations();
