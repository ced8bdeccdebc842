// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"
#include "support/Asio.h"

#include <boost/asio/ip/tcp.hpp>

#include <chrono>

struct WyomingOptions {
    std::string host;
    std::string port;
    std::string language = {};                  ///< where a request tells none; empty: the server's own
    std::chrono::milliseconds timeout{110'000}; ///< less than the 120 s after which the desktop program gives up
    int concurrency = 1;
};

/// A speech-to-text server of the Wyoming protocol over TCP, a connection for each recording: events as lines of JSON,
/// some followed by data or by samples.
class WyomingEngine : public Engine {
public:
    explicit WyomingEngine(WyomingOptions options);

    int concurrency() const override { return m_options.concurrency; }
    QString transcribe(const Recording &recording) override;

private:
    using Socket = net::ip::tcp::socket;

    net::awaitable<QString> ask(const Recording &recording) const;
    static net::awaitable<QString> receive(Socket &socket);

    WyomingOptions m_options;
};
