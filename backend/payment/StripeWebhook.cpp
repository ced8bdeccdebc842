// SPDX-License-Identifier: MIT
#include "payment/StripeWebhook.h"

#include "support/Secrets.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageAuthenticationCode>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// In seconds; how far Stripe's own libraries let the clocks differ.
constexpr qint64 tolerance = 300;

bool isSigned(std::string_view signature, std::string_view body, const std::string &secret, qint64 now)
{
    const auto header = QByteArray(signature.data(), static_cast<qsizetype>(signature.size()));
    QByteArray time;
    QList<QByteArray> candidates;
    for (const auto &item : header.split(',')) {
        const auto entry = item.trimmed();
        if (entry.startsWith("t=")) {
            time = entry.sliced(2);
        } else if (entry.startsWith("v1=")) {
            candidates.append(entry.sliced(3));
        }
    }
    bool isNumber = false;
    const auto seconds = time.toLongLong(&isNumber);
    if (!isNumber || seconds < now - tolerance || seconds > now + tolerance) {
        return false;
    }
    QMessageAuthenticationCode code(QCryptographicHash::Sha256, QByteArray::fromStdString(secret));
    code.addData(time + '.');
    code.addData(body.data(), static_cast<qsizetype>(body.size()));
    const auto expected = code.result().toHex();
    bool matches = false;
    for (const auto &candidate : candidates) {
        matches = equalInConstantTime(candidate, expected) || matches;
    }
    return matches;
}

} // namespace

std::optional<PaymentEvent> verifyStripeEvent(std::string_view signature, std::string_view body,
                                              const std::string &secret, qint64 now)
{
    if (!isSigned(signature, body, secret, now)) {
        return std::nullopt;
    }
    const auto document =
        QJsonDocument::fromJson(QByteArray(body.data(), static_cast<qsizetype>(body.size()))).object();
    PaymentEvent event;
    event.payment.eventId = document[u"id"_s].toString();
    if (event.payment.eventId.isEmpty()) {
        return std::nullopt;
    }
    const auto type = document[u"type"_s].toString();
    const auto session = document[u"data"_s].toObject()[u"object"_s].toObject();
    const auto intent = session[u"payment_intent"_s].toString();
    // A session completes unpaid when the payment takes days, and the second type tells of its arrival.
    if ((type == u"checkout.session.completed"_s || type == u"checkout.session.async_payment_succeeded"_s) &&
        session[u"payment_status"_s].toString() == u"paid"_s) {
        event.payment.amount = session[u"amount_total"_s].toInteger(-1);
        event.payment.currency = session[u"currency"_s].toString();
        event.payment.intent = intent;
        event.purchaseId = session[u"client_reference_id"_s].toString();
    }
    // A charge tells all that was paid back of it so far; a dispute, what it is about.
    const auto isRefund = type == u"charge.refunded"_s;
    if ((isRefund || type == u"charge.dispute.created"_s) && !intent.isEmpty()) {
        event.refund = {event.payment.eventId, intent,
                        session[isRefund ? u"amount_refunded"_s : u"amount"_s].toInteger(0)};
    }
    return event;
}
