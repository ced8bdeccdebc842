// SPDX-License-Identifier: MIT
#pragma once

#include "api/Api.h"
#include "app/Options.h"
#include "engine/CommandEngine.h"
#include "engine/OpenAiEngine.h"
#include "engine/WyomingEngine.h"
#include "http/Server.h"

#include <boost/asio/ip/tcp.hpp>

/// What the server is started with.
struct Settings {
    enum class EngineKind { PocketSphinx, OpenAi, Command, Wyoming };

    net::ip::tcp::endpoint endpoint;
    QString database;
    EngineKind engine = EngineKind::PocketSphinx;
    int engineQueue = 0; ///< recordings that may wait for the engine or be in it
    OpenAiOptions openAi;
    CommandOptions command;
    WyomingOptions wyoming;
    GrantPolicy grants;
    ApiOptions api; ///< with an empty public address for the one that the server listens on
    ServerOptions server;
    std::optional<net::ip::tcp::endpoint> monitor; ///< where health and metrics are told apart from the rest
    bool accessLog = false;
    std::function<Settings()> again; ///< reads them anew; throws SettingsError
};

/// Reads the files that the options name. Throws SettingsError.
Settings settingsOf(const Options &options);

/// Reads only where the devices are kept, so that their operator needs none of the server's keys. Throws SettingsError.
Settings storeSettingsOf(const Options &options);

/// `settings.database` as it may be shown: without a password.
QString shownDatabase(const QString &database);
