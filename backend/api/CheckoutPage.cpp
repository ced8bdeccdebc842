// SPDX-License-Identifier: MIT
#include "api/CheckoutPage.h"

#include <QLocale>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// Those of ISO 4217 whose smallest unit is the currency itself.
constexpr std::array wholeCurrencies{"bif"_L1, "clp"_L1, "djf"_L1, "gnf"_L1, "jpy"_L1, "kmf"_L1, "krw"_L1, "mga"_L1,
                                     "pyg"_L1, "rwf"_L1, "ugx"_L1, "vnd"_L1, "vuv"_L1, "xaf"_L1, "xof"_L1, "xpf"_L1};

QString grouped(qint64 tokens)
{
    return QLocale(QLocale::English).toString(tokens);
}

Reply page(unsigned status, const QString &heading, const QString &content)
{
    const auto html = QStringLiteral(R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Quillo tokens</title>
<style>
:root { color-scheme: light dark; --ink: #222; --paper: #faf8f3; --card: #fff; --line: #c9c3b4; --accent: #7a4a12; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #eae6dc; --paper: #1d1b18; --card: #2a2723; --line: #57514a; --accent: #e5b272; }
}
body { font: 1.0625rem/1.5 system-ui, sans-serif; max-width: 28rem; margin: 0 auto; padding: 12vh 1.25rem 2rem;
  color: var(--ink); background: var(--paper); }
button { display: flex; justify-content: space-between; width: 100%; margin: 0.75rem 0; padding: 1rem; font: inherit;
  color: inherit; background: var(--card); border: 1px solid var(--line); border-radius: 0.5rem; cursor: pointer; }
button:hover, button:focus-visible { border-color: var(--accent); outline: 2px solid var(--accent); }
</style>
</head>
<body>
<h1>%1</h1>
%2</body>
</html>
)");
    Reply reply;
    reply.status = status;
    reply.contentType = "text/html; charset=utf-8";
    reply.body = html.arg(heading, content).toStdString();
    reply.headers = {{"Content-Security-Policy",
                      "default-src 'none'; style-src 'unsafe-inline'; "
                      // Browsers apply form-action to where a form's reply redirects, too.
                      "form-action 'self' https: http:; frame-ancestors 'none'; base-uri 'none'"},
                     {"Referrer-Policy", "no-referrer"}};
    return reply;
}

} // namespace

QString priceText(qint64 price, const QString &currency)
{
    const auto isWhole = std::ranges::find(wholeCurrencies, currency) != wholeCurrencies.end();
    auto digits = QString::number(price);
    if (!isWhole) {
        digits = digits.rightJustified(3, u'0');
        digits.insert(digits.size() - 2, u'.');
    }
    return digits + u' ' + currency.toUpper();
}

Reply packsPage(const PriceList &prices)
{
    QString content;
    if (prices.isDevelopment) {
        content += u"<p>This is a development server without a payment provider. It credits the tokens at once, "
                   "for free.</p>\n"_s;
    }
    content += u"<form method=\"post\">\n"_s;
    for (size_t i = 0; i < prices.packs.size(); ++i) {
        const auto &pack = prices.packs[i];
        content += u"<button name=\"pack\" value=\"%1\"><span>%2 tokens</span><span>%3</span></button>\n"_s.arg(
            QString::number(i), grouped(pack.tokens),
            prices.isDevelopment ? u"free"_s : priceText(pack.price, prices.currency));
    }
    return page(200, u"Get tokens"_s, content + u"</form>\n"_s);
}

Reply boughtPage(const Pack &pack, qint64 balance)
{
    const auto content = QStringLiteral("<p>%1 tokens were added. The balance is now %2 tokens.</p>\n"
                                        "<p>You can close this page.</p>\n");
    return page(200, QStringLiteral("Thank you"), content.arg(grouped(pack.tokens), grouped(balance)));
}

Reply expiredPage()
{
    return page(410, QStringLiteral("This link can't be used"),
                QStringLiteral("<p>It has expired or was used already. Please ask Quillo for a new one.</p>\n"));
}

Reply paidPage()
{
    return page(200, u"Thank you"_s,
                u"<p>Your tokens are added as soon as the payment has arrived, usually within seconds.</p>\n"
                "<p>You can close this page.</p>\n"_s);
}

Reply cancelledPage()
{
    return page(200, u"Nothing was bought"_s,
                u"<p>The payment was cancelled. To buy tokens after all, please ask Quillo for a new link.</p>\n"_s);
}

Reply unpayablePage()
{
    return page(503, u"Payment is unavailable"_s,
                u"<p>The payment provider can't be reached right now. Nothing was charged. Please try this page again "
                "in a few minutes.</p>\n"_s);
}
