// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

#include <QString>

/// The date of a history entry.
namespace EntryDate {

/// Reads an ISO 8601 date-time with a zone, with or without fractions of a second. Anything else is the distant past,
/// 1 January of year 1.
Clock::Instant parse(const QString &timestamp);

/// How long ago `date` is at `now`: "just now", "5 min ago", "1 hr ago", "1 day, 2 hrs ago". The future is just now.
QString relativeTime(Clock::Instant date, Clock::Instant now);

} // namespace EntryDate
