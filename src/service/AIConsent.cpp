// SPDX-License-Identifier: MIT
#include "service/AIConsent.h"

#include "platform/Preferences.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"aiConsent"_s;

// Dates are stored as seconds since this moment.
constexpr Clock::Instant referenceDate = std::chrono::sys_days(std::chrono::year(2001) / 1 / 1);

} // namespace

std::optional<AIConsent::Record> AIConsent::record() const
{
    const QJsonObject object = QJsonDocument::fromJson(m_preferences.data(key).value_or(QByteArray())).object();
    const QJsonValue version = object.value(u"version"_s);
    const QJsonValue grantedAt = object.value(u"grantedAt"_s);
    const bool isInteger = version.toInteger(0) == version.toInteger(1); // else the default, whatever that is
    if (!isInteger || !grantedAt.isDouble()) {
        return std::nullopt;
    }
    // Far beyond any date: more would overflow the clock's milliseconds.
    constexpr double limit = 1e14;
    const double seconds = std::clamp(grantedAt.toDouble(), -limit, limit);
    return Record{version.toInteger(), referenceDate + std::chrono::milliseconds(std::llround(seconds * 1000))};
}

bool AIConsent::isCurrent() const
{
    const auto stored = record();
    return stored && stored->version == currentVersion;
}

void AIConsent::grant()
{
    const std::chrono::duration<double> grantedAt = m_clock.now() - referenceDate;
    const QJsonObject object{{u"version"_s, qint64{currentVersion}}, {u"grantedAt"_s, grantedAt.count()}};
    m_preferences.setData(key, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void AIConsent::withdraw()
{
    m_preferences.remove(key);
}

AIConsentError::AIConsentError()
    : LocalizedError(QCoreApplication::translate(
          "AIConsent", "Sending to OpenAI needs your permission first. Open Data & AI from the menu bar."))
{
}
