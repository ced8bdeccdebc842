// SPDX-License-Identifier: MIT
#pragma once

#include "api/Authenticator.h"
#include "api/Limits.h"
#include "engine/Transcriber.h"
#include "http/Metrics.h"
#include "http/Router.h"
#include "http/Shares.h"

/// Turns an upload into text, for tokens. The tokens are set aside before the engine runs, and taken when the reply has
/// been sent; see Ledger.
class TranscribeEndpoint {
public:
    struct Options {
        qint64 tokensPerSecond = 1; ///< the price of a started second of audio
        size_t largestUpload = 32UL * 1024 * 1024;
        int atOncePerDevice = 3; ///< uploads and what comes of them, until they are answered; 0 is no limit
        /// How long the recordings of one device may be decoded at once, and how much longer it takes to regain that.
        std::chrono::seconds decodingPerDevice{60};
        int decodingPause = 10;
        /// Before the tokens of a delivered transcript are taken a second time, after the database failed; twice as
        /// long before each further attempt. All of them end long before the hold lapses.
        std::chrono::milliseconds chargeDelay{250};
        int chargeAttempts = 8;
    };

    /// All must outlive it.
    TranscribeEndpoint(Options options, StoreThreads &store, Transcriber &transcriber, Limits &limits,
                       Metrics &metrics);

    void addTo(Router &router);

    /// From the next request on; the largest upload stays. I/O thread.
    void reload(const Options &options);

private:
    struct HeldTokens;

    net::awaitable<std::shared_ptr<void>> admit(const Request &head);
    net::awaitable<Reply> transcribe(const Request &request);
    net::awaitable<Device> payingDevice(const Request &request) const;
    net::awaitable<Inspection> inspect(Transcriber::Job &job);
    net::awaitable<std::shared_ptr<HeldTokens>> hold(const Device &device, qint64 tokens);
    net::awaitable<QString> textOf(Transcriber::Job &job);
    net::awaitable<void> charge(HeldTokens &tokens, qint64 seconds);

    Options m_options;
    StoreThreads &m_store;
    Authenticator m_authenticator;
    Transcriber &m_transcriber;
    Limits &m_limits;
    Metrics &m_metrics;
    Shares m_shares;
};
