// SPDX-License-Identifier: MIT
#pragma once

#include "api/Authenticator.h"
#include "engine/Transcriber.h"
#include "http/Metrics.h"
#include "http/Router.h"

/// Turns an upload into text, for tokens. The tokens are set aside before the engine runs, and taken when the reply has
/// been sent; see Ledger.
class TranscribeEndpoint {
public:
    struct Options {
        qint64 tokensPerSecond = 1; ///< the price of a started second of audio
        size_t largestUpload = 32UL * 1024 * 1024;
        /// Before the tokens of a delivered transcript are taken a second time, after the database failed; twice as
        /// long before each further attempt. All of them end long before the hold lapses.
        std::chrono::milliseconds chargeDelay{250};
        int chargeAttempts = 8;
    };

    /// All must outlive it.
    TranscribeEndpoint(Options options, StoreThreads &store, Transcriber &transcriber, Metrics &metrics);

    void addTo(Router &router);

private:
    struct HeldTokens;

    net::awaitable<Reply> transcribe(const Request &request);
    net::awaitable<Device> payingDevice(const Request &request) const;
    net::awaitable<Inspection> inspect(std::string_view file);
    net::awaitable<std::shared_ptr<HeldTokens>> hold(const Device &device, qint64 tokens);
    net::awaitable<QString> textOf(std::string_view file, const Request &request);
    net::awaitable<void> charge(HeldTokens &tokens, qint64 seconds);

    Options m_options;
    StoreThreads &m_store;
    Authenticator m_authenticator;
    Transcriber &m_transcriber;
    Metrics &m_metrics;
};
