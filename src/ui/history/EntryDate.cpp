// SPDX-License-Identifier: MIT
#include "ui/history/EntryDate.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {

constexpr Clock::Instant distantPast = std::chrono::sys_days(std::chrono::year(1) / 1 / 1);

QString counted(int64_t count, QStringView unit)
{
    return u"%1 %2%3"_s.arg(count).arg(unit, count == 1 ? u"" : u"s");
}

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
    const auto days = seconds / 86400;
    const auto hours = seconds % 86400 / 3600;
    const auto minutes = seconds / 60;
    if (days < 1 && hours < 1) {
        return minutes < 1 ? u"just now"_s : u"%1 min ago"_s.arg(minutes);
    }
    if (days < 1) {
        return counted(hours, u"hr") + u" ago"_s;
    }
    return counted(days, u"day") + (hours >= 1 ? u", "_s + counted(hours, u"hr") : QString()) + u" ago"_s;
}
