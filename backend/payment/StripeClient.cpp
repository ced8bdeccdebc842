// SPDX-License-Identifier: MIT
#include "payment/StripeClient.h"

#include "support/Curl.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Everything but letters, digits and "-._~" is escaped, which is more than a form needs.
std::string formOf(const QList<std::pair<QString, QString>> &fields)
{
    QByteArray form;
    for (const auto &[name, value] : fields) {
        form += (form.isEmpty() ? "" : "&") + QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
    }
    return form.toStdString();
}

} // namespace

std::string StripeClient::createSession(const Order &order) const
{
    const auto product = QLocale(QLocale::English).toString(order.pack.tokens) + u" Quillo tokens"_s;
    const auto form = formOf({
        {u"mode"_s, u"payment"_s},
        {u"client_reference_id"_s, order.purchase.id},
        {u"line_items[0][quantity]"_s, u"1"_s},
        {u"line_items[0][price_data][currency]"_s, order.currency},
        {u"line_items[0][price_data][unit_amount]"_s, QString::number(order.pack.price)},
        {u"line_items[0][price_data][product_data][name]"_s, product},
        {u"success_url"_s, QString::fromStdString(order.paidUrl)},
        {u"cancel_url"_s, QString::fromStdString(order.cancelledUrl)},
    });
    CurlHeaders headers(curl_slist_append(nullptr, ("Authorization: Bearer " + m_options.key).c_str()));
    curl_slist_append(headers.get(), ("Idempotency-Key: " + order.purchase.id.toStdString()).c_str());
    const auto url = m_options.baseUrl + "/v1/checkout/sessions";
    std::string answer;
    const auto transfer = newCurlTransfer(url, answer);
    curl_easy_setopt(transfer.get(), CURLOPT_TIMEOUT, static_cast<long>(m_options.timeout.count()));
    curl_easy_setopt(transfer.get(), CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(transfer.get(), CURLOPT_POSTFIELDS, form.c_str());
    if (const auto result = curl_easy_perform(transfer.get()); result != CURLE_OK) {
        throw PaymentError(std::string("Stripe can't be reached: ") + curl_easy_strerror(result));
    }
    long status = 0;
    curl_easy_getinfo(transfer.get(), CURLINFO_RESPONSE_CODE, &status);
    const auto session = QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object();
    const QUrl page(session[u"url"_s].toString(), QUrl::StrictMode);
    // The body of a refusal may quote the key, so only the status is told.
    if (status != 200 || !page.isValid() || !page.scheme().startsWith(u"http"_s)) {
        throw PaymentError("Stripe answered with status " + std::to_string(status) + " and no page");
    }
    return page.toEncoded().toStdString();
}
