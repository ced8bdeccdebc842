// SPDX-License-Identifier: MIT
#include "app/model/AppModel.h"

#include "platform/Platform.h"
#include "platform/Preferences.h"
#include "platform/Workspace.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto purchasePollInterval = 5000ms;
constexpr int mostPurchasePolls = 180; // a quarter of an hour to pay

} // namespace

void AppModel::refreshBalance()
{
    fetchBalance();
}

void AppModel::buyTokens()
{
    openCheckout();
}

void AppModel::setBalance(int64_t balance)
{
    if (m_balance != balance) {
        m_balance = balance;
        Q_EMIT balanceChanged();
    }
}

QCoro::Task<void> AppModel::fetchBalance()
{
    try {
        const Balance reply = co_await m_client.balance();
        m_isUnmetered = reply.unmetered;
        // The request may have registered the device, which is when this becomes known.
        m_freeGrantMissed = m_platform.preferences.boolean(u"freeGrantMissed"_s);
        m_balance = reply.balance;
        Q_EMIT balanceChanged();
    } catch (const LocalizedError &) {
        co_return; // the earlier values stay; the next dictation brings the balance along
    }
}

QCoro::Task<void> AppModel::openCheckout()
{
    try {
        const QUrl link = co_await m_client.checkoutLink();
        m_platform.workspace.open(link);
    } catch (const LocalizedError &error) {
        m_hud.show(HUDPhase::Message{error.localizedDescription(), true});
        co_return;
    }
    ++m_purchaseWatchNumber;
    pollForPurchase(m_balance, 0);
}

void AppModel::pollForPurchase(std::optional<int64_t> startingBalance, int polls)
{
    m_purchaseWatch = m_clock.after(purchasePollInterval, [this, startingBalance, polls] {
        checkForPurchase(startingBalance, polls, m_purchaseWatchNumber);
    });
}

QCoro::Task<void> AppModel::checkForPurchase(std::optional<int64_t> startingBalance, int polls, int watch)
{
    try {
        const Balance reply = co_await m_client.balance();
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
