// SPDX-License-Identifier: MIT
#include "service/AIConsent.h"

#include "FakeClock.h"
#include "FakePreferences.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString key = u"aiConsent"_s;

} // namespace

TEST(AIConsentTest, AnAgreementCountsUntilItIsWithdrawn)
{
    FakePreferences preferences;
    FakeClock clock;
    AIConsent consent(preferences, clock);
    EXPECT_FALSE(consent.isCurrent());
    consent.grant();
    EXPECT_TRUE(consent.isCurrent());
    EXPECT_EQ(preferences.values[u"aiConsent"_s].toByteArray(), R"({"grantedAt":791553600,"version":1})");
    clock.advance(1500ms);
    consent.grant();
    EXPECT_EQ(consent.record()->grantedAt, clock.now());
    consent.withdraw();
    EXPECT_FALSE(consent.record());
    EXPECT_TRUE(preferences.values.isEmpty());
}

TEST(AIConsentTest, StoredRecordsAreReadAsTheyAre)
{
    struct Row {
        QVariant stored;
        bool isRecord;
        bool isCurrent;
    };
    FakePreferences preferences;
    FakeClock clock;
    const AIConsent consent(preferences, clock);
    for (const Row &row : {Row{QByteArray(R"({"grantedAt":790000000.25,"version":1,"by":"me"})"), true, true},
                           Row{QByteArray(R"({"grantedAt":1,"version":2})"), true, false},
                           Row{QByteArray(R"({"grantedAt":1e300,"version":1})"), true, true},
                           Row{QByteArray(R"({"grantedAt":1,"version":1.5})"), false, false},
                           Row{QByteArray(R"({"grantedAt":1,"version":1e300})"), false, false},
                           Row{QByteArray(R"({"grantedAt":"now","version":1})"), false, false},
                           Row{QByteArray(R"({"version":1})"), false, false}, Row{QByteArray("[]"), false, false},
                           Row{QString(R"({"grantedAt":1,"version":1})"_L1), false, false}}) {
        preferences.values[key] = row.stored;
        EXPECT_EQ(consent.record().has_value(), row.isRecord) << row.stored.toString().toStdString();
        EXPECT_EQ(consent.isCurrent(), row.isCurrent) << row.stored.toString().toStdString();
    }
    preferences.setData(key, R"({"grantedAt":790000000.25,"version":1})");
    EXPECT_EQ(consent.record()->grantedAt,
              Clock::Instant(std::chrono::sys_days(std::chrono::year(2001) / 1 / 1)) + 790000000250ms);
}
