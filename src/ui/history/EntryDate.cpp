// SPDX-License-Identifier: MIT
#include "ui/history/EntryDate.h"

#include <QCoreApplication>
#include <QDateTime>

namespace {

constexpr Clock::Instant distantPast = std::chrono::sys_days(std::chrono::year(1) / 1 / 1);

struct Age {
    Q_DECLARE_TR_FUNCTIONS(Age)

public:
    //: Part of how long ago something was.
    static QString days(int count) { return count == 1 ? tr("1 day") : tr("%n days", nullptr, count); }
    //: Part of how long ago something was.
    static QString hours(int count) { return count == 1 ? tr("1 hr") : tr("%n hrs", nullptr, count); }
};

} // namespace

Clock::Instant EntryDate::parse(const QString &timestamp)
{
    const auto date = QDateTime::fromString(timestamp, Qt::ISODateWithMs);
    // Qt also reads a date alone, and a time without a zone as local time.
    const bool hasZone = date.timeSpec() != Qt::LocalTime;
    return date.isValid() && hasZone ? Clock::Instant(Clock::Duration(date.toMSecsSinceEpoch())) : distantPast;
}

QString EntryDate::relativeTime(Clock::Instant date, Clock::Instant now)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now - date).count();
    const int days = int(seconds / 86400);
    const int hours = int(seconds % 86400 / 3600);
    const int minutes = int(seconds / 60);
    if (days < 1 && hours < 1) {
        return minutes < 1 ? Age::tr("just now") : Age::tr("%n min ago", nullptr, minutes);
    }
    if (days < 1) {
        //: %1: "3 hrs" or "2 days".
        return Age::tr("%1 ago").arg(Age::hours(hours));
    }
    return hours < 1 ? Age::tr("%1 ago").arg(Age::days(days))
                     //: %1: "2 days", %2: "3 hrs".
                     : Age::tr("%1, %2 ago").arg(Age::days(days), Age::hours(hours));
}
