// SPDX-License-Identifier: MIT
#pragma once

#include "engine/OpenAiEngine.h"
#include "http/Api.h"
#include "store/DeviceStore.h"

#include <QString>
#include <QStringList>
#include <boost/asio/ip/tcp.hpp>

#include <stdexcept>

/// A wrong value on the command line or in the configuration file, in one line for the operator.
class SettingsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What the server is started with: the command line over the configuration file over the defaults.
struct Settings {
    enum class EngineKind { PocketSphinx, OpenAi };

    net::ip::tcp::endpoint endpoint;
    QString database;
    EngineKind engine = EngineKind::PocketSphinx;
    OpenAiOptions openAi;
    GrantPolicy grants;
    ApiOptions api; ///< with an empty public address for the one that the server listens on
    bool verbose = false;
};

struct CommandLine {
    QString answer; ///< of --help and --version: to be printed instead of starting
    Settings settings;
};

/// `arguments` begin with the program's name. Reads the files they name; throws SettingsError.
CommandLine parseCommandLine(const QStringList &arguments);
