// SPDX-License-Identifier: MIT
#include "app/model/TokenBalance.h"

#include "platform/Preferences.h"
#include "platform/Workspace.h"
#include "service/ApiClient.h"
#include "ui/hud/RecordingHUD.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto purchasePollInterval = 5000ms;
constexpr int mostPurchasePolls = 180; // a quarter of an hour to pay

const QString freeGrantMissedKey = u"freeGrantMissed"_s;

} // namespace

TokenBalance::TokenBalance(Clock &clock, const Preferences &preferences, Workspace &workspace, ApiClient &client,
                           RecordingHUD &hud)
    : m_clock(clock),
      m_preferences(preferences),
      m_workspace(workspace),
      m_client(client),
      m_hud(hud),
      m_freeGrantMissed(preferences.boolean(freeGrantMissedKey))
{
}

void TokenBalance::setBalance(int64_t balance)
{
    if (m_balance != balance) {
        m_balance = balance;
        Q_EMIT balanceChanged();
    }
}

void TokenBalance::refresh()
{
    if (!m_isRefreshing) {
        fetchBalance();
    }
}

void TokenBalance::buyTokens()
{
    openCheckout();
}

QCoro::Task<void> TokenBalance::fetchBalance()
{
    m_isRefreshing = true;
    const auto ended = qScopeGuard([this] { m_isRefreshing = false; });
    try {
        const Balance reply = co_await m_client.balance();
        m_isUnmetered = reply.unmetered;
        // The request may have registered the device, which is when this becomes known.
        m_freeGrantMissed = m_preferences.boolean(freeGrantMissedKey);
        m_balance = reply.balance;
        Q_EMIT balanceChanged();
    } catch (const LocalizedError &) {
        co_return; // the earlier values stay; the next dictation brings the balance along
    }
}

QCoro::Task<void> TokenBalance::openCheckout()
{
    try {
        const QUrl link = co_await m_client.checkoutLink();
        const bool isPage = link.scheme() == u"https" || link.scheme() == u"http";
        if (!isPage || !m_workspace.open(link)) {
            m_hud.notify(HUDPhase::Message{tr("Couldn't open the checkout page in a browser"), true});
            co_return;
        }
    } catch (const LocalizedError &error) {
        m_hud.notify(HUDPhase::Message{error.localizedDescription(), true});
        co_return;
    }
    ++m_purchaseWatchNumber;
    pollForPurchase(m_balance, 0);
}

void TokenBalance::pollForPurchase(std::optional<int64_t> startingBalance, int polls)
{
    m_purchaseWatch = m_clock.after(purchasePollInterval, [this, startingBalance, polls] {
        checkForPurchase(startingBalance, polls, m_purchaseWatchNumber);
    });
}

QCoro::Task<void> TokenBalance::checkForPurchase(std::optional<int64_t> startingBalance, int polls, int watch)
{
    try {
        const Balance reply = co_await m_client.balance();
        if (watch != m_purchaseWatchNumber) {
            co_return; // a later purchase is watched instead
        }
        setBalance(reply.balance);
        if (startingBalance && reply.balance > *startingBalance) {
            co_return;
        }
    } catch (const LocalizedError &) {
        // A failed poll counts like any other.
    }
    if (watch == m_purchaseWatchNumber && polls + 1 < mostPurchasePolls) {
        pollForPurchase(startingBalance, polls + 1);
    }
}
