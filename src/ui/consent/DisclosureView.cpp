// SPDX-License-Identifier: MIT
#include "ui/consent/DisclosureView.h"

#include "platform/PackagedInfo.h"
#include "service/ApiClient.h"

#include <QDateTime>
#include <QLocale>

#include <unicode/datefmt.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Long date and short time. Qt's long date names the weekday too, so the locale data is asked directly.
QString longDateShortTime(Clock::Instant time)
{
    const icu::Locale locale(QLocale().name().toLatin1().constData());
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(icu::DateFormat::kLong, icu::DateFormat::kShort, locale));
    if (!format) {
        return QLocale().toString(QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count()));
    }
    icu::UnicodeString text;
    format->format(static_cast<UDate>(time.time_since_epoch().count()), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace

DisclosureView::DisclosureView(bool isReview, AIConsent &consent, const Preferences &preferences,
                               const PackagedInfo &packagedInfo, FinishHandler onFinish)
    : m_isReview(isReview),
      m_consent(consent),
      m_onFinish(std::move(onFinish)),
      m_granted(consent.record()),
      m_server(ApiClient::baseUrl(preferences, packagedInfo).value_or(QUrl()).host()),
      m_openAIPrivacyURL(packagedInfo.string(u"QLOOpenAIPrivacyURL"_s).value_or(QString())),
      m_privacyPolicyURL(packagedInfo.string(u"QLOPrivacyPolicyURL"_s).value_or(QString()))
{
}

bool DisclosureView::isGranted() const
{
    return m_granted && m_granted->version == AIConsent::currentVersion;
}

QString DisclosureView::agreement() const
{
    return m_granted ? longDateShortTime(m_granted->grantedAt) : QString();
}

bool DisclosureView::isServerHere() const
{
    return m_server == u"localhost" || m_server == u"::1" || m_server.startsWith(u"127.");
}

void DisclosureView::agree()
{
    m_consent.grant();
    m_onFinish(true);
}

void DisclosureView::withdraw()
{
    m_consent.withdraw();
    m_granted.reset();
    Q_EMIT grantedChanged();
    m_onFinish(false);
}

void DisclosureView::keep(bool wantsConsent) const
{
    m_onFinish(wantsConsent);
}
