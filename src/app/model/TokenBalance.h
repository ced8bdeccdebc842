// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "ui/models/BalanceProperties.h"

#include <QCoroTask>

#include <cstdint>
#include <memory>
#include <optional>

class ApiClient;
class Preferences;
class RecordingHUD;
class Workspace;

/// The user's balance of tokens: what the backend said last, and the purchase of more. Main thread only; every call
/// returns at once.
class TokenBalance : public BalanceProperties {
    Q_OBJECT

public:
    TokenBalance(Clock &clock, const Preferences &preferences, Workspace &workspace, ApiClient &client,
                 RecordingHUD &hud);

    /// Last known number of tokens; nothing before the first answer of the backend.
    std::optional<int64_t> balance() const { return m_balance; }
    /// The backend told it along with something else.
    void setBalance(int64_t balance);
    /// There were no free tokens left on the day this device was registered.
    bool freeGrantMissed() const { return m_freeGrantMissed; }

    /// Opens the checkout page and watches the balance until it rises, for a quarter of an hour at most.
    void buyTokens();

    bool isKnown() const override { return m_balance.has_value(); }
    qlonglong tokens() const override { return m_balance.value_or(0); }
    bool isUnmetered() const override { return m_isUnmetered; }
    void refresh() override;

private:
    QCoro::Task<void> fetchBalance();
    QCoro::Task<void> openCheckout();
    void pollForPurchase(std::optional<int64_t> startingBalance, int polls);
    QCoro::Task<void> checkForPurchase(std::optional<int64_t> startingBalance, int polls, int watch);

    Clock &m_clock;
    const Preferences &m_preferences;
    Workspace &m_workspace;
    ApiClient &m_client;
    RecordingHUD &m_hud;

    std::optional<int64_t> m_balance;
    bool m_isUnmetered = false;
    bool m_freeGrantMissed;
    bool m_isRefreshing = false;
    std::unique_ptr<Clock::Timer> m_purchaseWatch;
    int m_purchaseWatchNumber = 0; ///< tells a poll under way that its watch was replaced
};
