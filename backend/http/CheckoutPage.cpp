// SPDX-License-Identifier: MIT
#include "http/CheckoutPage.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace {

constexpr std::array packs{
    Pack{QLatin1String("small"), 3600},
    Pack{QLatin1String("medium"), 36000},
    Pack{QLatin1String("large"), 360000},
};

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
body { font: 16px/1.5 sans-serif; max-width: 28em; margin: 4em auto; padding: 0 1em; color: #222; background: #faf8f3; }
button { display: block; width: 100%; margin: 0.5em 0; padding: 0.75em; font: inherit; cursor: pointer; }
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
    reply.headers = {{"Content-Security-Policy", "default-src 'none'; style-src 'unsafe-inline'; form-action 'self'; "
                                                 "frame-ancestors 'none'; base-uri 'none'"},
                     {"Referrer-Policy", "no-referrer"}};
    return reply;
}

} // namespace

const Pack *findPack(const QString &id)
{
    const auto *const found = std::ranges::find(packs, id, &Pack::id);
    return found == packs.end() ? nullptr : found;
}

Reply packsPage()
{
    auto content =
        QStringLiteral("<p>This server has no payment provider. It credits the tokens at once, for free.</p>\n"
                       "<form method=\"post\">\n");
    for (const auto &pack : packs) {
        content += QStringLiteral("<button name=\"pack\" value=\"%1\">%2 tokens</button>\n")
                       .arg(QString(pack.id), grouped(pack.tokens));
    }
    return page(200, QStringLiteral("Get tokens"), content + QStringLiteral("</form>\n"));
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
