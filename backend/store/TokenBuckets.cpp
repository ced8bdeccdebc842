// SPDX-License-Identifier: MIT
#include "store/TokenBuckets.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// In milliseconds since the epoch, as everywhere in the table.
constexpr auto now = "(EXTRACT(EPOCH FROM clock_timestamp()) * 1000)::BIGINT";

constexpr int forgettingPace = 1024;

QString statement(const char *text)
{
    return QString::fromLatin1(text).replace(u"{now}"_s, QLatin1String(now));
}

} // namespace

std::optional<TokenBuckets::Time> TokenBuckets::take(const QString &owner, Time cost, Time whole)
{
    // One statement, so that no two processes take the same.
    static const auto sql =
        statement("INSERT INTO token_buckets (owner, full_at) VALUES (?, {now} + ?) ON CONFLICT (owner) DO UPDATE"
                  " SET full_at = GREATEST(token_buckets.full_at, {now}) + ?"
                  " WHERE GREATEST(token_buckets.full_at, {now}) + ? <= {now} + ?");
    forgetFull();
    const qint64 price = cost.count();
    if (m_database.change(sql, {owner, price, price, price, static_cast<qint64>(whole.count())}) == 1) {
        return std::nullopt;
    }
    static const auto left = statement("SELECT full_at - {now} FROM token_buckets WHERE owner = ?");
    const auto row = m_database.first(left, {owner});
    return std::max(Time((row ? row->at(0).toLongLong() : 0) + price) - whole, Time(1));
}

/// A full bucket is as good as none.
void TokenBuckets::forgetFull()
{
    if (--m_untilForgetting <= 0) {
        m_untilForgetting = forgettingPace;
        m_database.change(statement("DELETE FROM token_buckets WHERE full_at <= {now}"));
    }
}

void TokenBuckets::add(const QString &owner, Time cost)
{
    static const auto sql = statement("INSERT INTO token_buckets (owner, full_at) VALUES (?, {now} + ?) ON CONFLICT"
                                      " (owner) DO UPDATE SET full_at = GREATEST(token_buckets.full_at, {now}) + ?");
    const qint64 price = cost.count();
    m_database.change(sql, {owner, price, price});
}
