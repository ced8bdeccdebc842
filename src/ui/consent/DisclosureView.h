// SPDX-License-Identifier: MIT
#pragma once

#include "service/AIConsent.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

class PackagedInfo;
class Preferences;

/// What the consent window says and asks, as its view observes it. Main thread only.
class DisclosureView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Disclosure)
    QML_UNCREATABLE("The consent window makes it")
    Q_PROPERTY(bool isReview READ isReview CONSTANT)
    Q_PROPERTY(bool isGranted READ isGranted NOTIFY grantedChanged)
    Q_PROPERTY(QString agreement READ agreement NOTIFY grantedChanged)
    /// The host, as configured, that recordings go to; empty without a usable address.
    Q_PROPERTY(QString server MEMBER m_server CONSTANT)
    /// That host is this computer.
    Q_PROPERTY(bool isServerHere READ isServerHere CONSTANT)
    Q_PROPERTY(QString openAIPrivacyURL MEMBER m_openAIPrivacyURL CONSTANT)
    Q_PROPERTY(QString privacyPolicyURL MEMBER m_privacyPolicyURL CONSTANT)

public:
    /// True: the user wants consent to be on.
    using FinishHandler = std::function<void(bool wantsConsent)>;

    /// The addresses come from the packaged values "QLOOpenAIPrivacyURL" and "QLOPrivacyPolicyURL"; a link without one
    /// is not shown. `onFinish` may destroy the view.
    DisclosureView(bool isReview, AIConsent &consent, const Preferences &preferences, const PackagedInfo &packagedInfo,
                   FinishHandler onFinish);

    bool isReview() const { return m_isReview; }
    /// Consent to the current disclosure is on record.
    bool isGranted() const;
    /// When the user agreed: long date and short time in the user's locale; empty without a record.
    QString agreement() const;

    bool isServerHere() const;

    Q_INVOKABLE void agree();
    Q_INVOKABLE void withdraw();
    /// Ends with things as they are: on when `wantsConsent`.
    Q_INVOKABLE void keep(bool wantsConsent) const;

Q_SIGNALS:
    void grantedChanged();

private:
    bool m_isReview;
    AIConsent &m_consent;
    FinishHandler m_onFinish;
    std::optional<AIConsent::Record> m_granted;
    QString m_server;
    QString m_openAIPrivacyURL;
    QString m_privacyPolicyURL;
};
