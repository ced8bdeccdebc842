// SPDX-License-Identifier: MIT
#pragma once

#include "app/Settings.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/signal_set.hpp>

#include <memory>

/// The whole server, built once from its settings.
class Backend {
public:
    /// Opens the database and listens: on the socket that systemd passed, if it did, otherwise on the settings'
    /// endpoint. Throws std::exception with a text for the operator.
    Backend(const Settings &settings, std::unique_ptr<Engine> engine);

    /// Where it listens, such as "http://127.0.0.1:8791".
    std::string url() const { return m_url; }

    /// Tells systemd, if it asked to be told, that the server is ready, and serves until SIGTERM or SIGINT, and then
    /// until the running requests are answered. A second signal kills. False when some ran too long and were refused:
    /// the engine still works on them, and the destructor would wait for it. SIGHUP reads the settings anew.
    bool run();

private:
    void awaitReload();
    void reload();

    net::io_context m_io{1};
    net::signal_set m_signals;
    net::signal_set m_hangups;
    std::function<Settings()> m_again;
    Settings::EngineKind m_engine;
    bool m_accessLog;
    StoreThreads m_store;
    Transcriber m_transcriber;
    net::ip::tcp::acceptor m_acceptor;
    std::string m_url;
    Api m_api;
    Server m_server;
    std::optional<Server> m_monitor;
    bool m_gaveUp = false;
};
