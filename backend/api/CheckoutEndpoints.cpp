// SPDX-License-Identifier: MIT
#include "api/CheckoutEndpoints.h"

#include "payment/StripeWebhook.h"
#include "support/Log.h"

#include <QJsonObject>
#include <QUrlQuery>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view pagePrefix = "/checkout/";
constexpr std::string_view paidPath = "/checkout/paid";
constexpr std::string_view cancelledPath = "/checkout/cancelled";
// An event holds a whole checkout session.
constexpr size_t largestEvent = 256UL * 1024;

QByteArray tokenOf(const Request &request)
{
    return QByteArray::fromStdString(request.path.substr(pagePrefix.size()));
}

Router::Endpoint fixed(Reply (*page)())
{
    return [page](const Request &) -> net::awaitable<Reply> { co_return page(); };
}

} // namespace

CheckoutEndpoints::CheckoutEndpoints(CheckoutOptions options, StoreThreads &store, WallClock clock)
    : m_options(std::move(options)),
      m_prices{m_options.packs, m_options.currency, m_options.provider == CheckoutOptions::Provider::Manual},
      m_store(store),
      m_clock(std::move(clock)),
      m_authenticator(store),
      m_stripe(std::make_shared<StripeClient>(m_options.stripe))
{
}

void CheckoutEndpoints::addTo(Router &router)
{
    router.add("POST", "/v1/checkout/link", [this](const Request &request) { return createLink(request); });
    if (m_options.provider == CheckoutOptions::Provider::None) {
        return;
    }
    router.add("GET", "/checkout/*", [this](const Request &request) { return showPacks(request); });
    router.add("POST", "/checkout/*", [this](const Request &request) { return buy(request); });
    if (m_options.provider == CheckoutOptions::Provider::Stripe) {
        router.add("GET", paidPath, fixed(paidPage));
        router.add("GET", cancelledPath, fixed(cancelledPage));
        router.add(
            "POST", "/webhooks/stripe", [this](const Request &request) { return receiveEvent(request); }, largestEvent);
    }
}

void CheckoutEndpoints::reload(const StripeOptions &stripe)
{
    m_options.stripe = stripe;
    m_stripe = std::make_shared<StripeClient>(stripe);
}

net::awaitable<Reply> CheckoutEndpoints::createLink(const Request &request)
{
    const auto device = co_await m_authenticator.authenticate(request);
    if (m_options.provider == CheckoutOptions::Provider::None) {
        throw Refusal(404, "not_found", "Tokens can't be bought on this server.");
    }
    const auto token = co_await m_store.run([&](Store &store) { return store.checkout.addLink(device.id); });
    const auto url = m_options.publicUrl + std::string(pagePrefix) + token.toStdString();
    co_return jsonReply({{u"url"_s, QString::fromStdString(url)}});
}

net::awaitable<Reply> CheckoutEndpoints::showPacks(const Request &request)
{
    const auto token = tokenOf(request);
    const auto valid = co_await m_store.run([&](Store &store) { return store.checkout.isValid(token); });
    co_return valid ? packsPage(m_prices) : expiredPage();
}

net::awaitable<Reply> CheckoutEndpoints::buy(const Request &request)
{
    const QUrlQuery form(QString::fromStdString(request.body));
    bool isNumber = false;
    const auto index = form.queryItemValue(u"pack"_s).toUInt(&isNumber);
    if (!isNumber || index >= m_prices.packs.size()) {
        throw Refusal::badRequest();
    }
    const auto token = tokenOf(request);
    const auto pack = m_prices.packs[index];
    const auto purchase =
        co_await m_store.run([&](Store &store) { return store.checkout.begin(token, pack, m_prices.currency); });
    if (!purchase) {
        co_return expiredPage();
    }
    if (m_options.provider == CheckoutOptions::Provider::Stripe) {
        co_return co_await pay(token, *purchase, pack);
    }
    const auto id = purchase->id;
    const auto balance = co_await m_store.run([&](Store &store) { return store.checkout.complete(id); });
    co_return boughtPage(pack, balance.value_or(0));
}

net::awaitable<Reply> CheckoutEndpoints::pay(QByteArray token, Purchase purchase, Pack pack)
{
    const StripeClient::Order order{purchase, pack, m_prices.currency, m_options.publicUrl + std::string(paidPath),
                                    m_options.publicUrl + std::string(cancelledPath)};
    std::string page;
    try {
        const auto stripe = m_stripe; // which may be replaced meanwhile
        page = co_await runOn(m_payments, [&] { return stripe->createSession(order); });
    } catch (const PaymentError &error) {
        logLine(error.what());
    }
    if (page.empty()) {
        co_await m_store.run([&](Store &store) {
            store.checkout.abandon(token, purchase);
            return true;
        });
        co_return unpayablePage();
    }
    Reply reply;
    reply.status = 303;
    reply.contentType = "text/plain";
    reply.headers = {{"Location", page}, {"Referrer-Policy", "no-referrer"}};
    co_return reply;
}

net::awaitable<Reply> CheckoutEndpoints::receiveEvent(const Request &request)
{
    const auto event = verifyStripeEvent(request.signature, request.body, m_options.stripe.webhookSecret, m_clock());
    if (!event) {
        throw Refusal(400, "bad_signature", "The signature is not valid.");
    }
    if (!event->purchaseId.isEmpty()) {
        const auto credited = co_await m_store.run(
            [&](Store &store) { return store.checkout.complete(event->purchaseId, event->payment).has_value(); });
        logLine(credited ? "a purchase was credited"
                         : "a payment event was a repetition, or about no purchase of ours at this price");
    }
    if (const auto &refund = event->refund) {
        const auto taken = co_await m_store.run([&](Store &store) { return store.checkout.takeBack(*refund); });
        logLine(taken ? "tokens were taken back for a refund or a dispute"
                      : "a refund was a repetition, or of no purchase of ours");
    }
    co_return jsonReply({{u"received"_s, true}});
}
