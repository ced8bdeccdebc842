// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Transcriber.h"
#include "http/Authenticator.h"
#include "http/Metrics.h"
#include "http/Router.h"

/// Turns an upload into text, for tokens. The tokens are set aside before the engine runs, and taken when the reply has
/// been sent; see Ledger.
class TranscribeEndpoint {
public:
    struct Options {
        qint64 tokensPerSecond = 1; ///< the price of a started second of audio
        size_t largestUpload = 32UL * 1024 * 1024;
    };

    /// All must outlive it.
    TranscribeEndpoint(Options options, StoreThreads &store, Transcriber &transcriber, Metrics &metrics);

    void addTo(Router &router);

private:
    net::awaitable<Reply> transcribe(const Request &request);
    net::awaitable<Inspection> inspect(std::string_view file);
    net::awaitable<QString> textOf(std::string_view file, const Request &request);
    net::awaitable<void> end(Ledger::Hold hold, bool delivered, qint64 seconds);

    Options m_options;
    StoreThreads &m_store;
    Authenticator m_authenticator;
    Transcriber &m_transcriber;
    Metrics &m_metrics;
};
