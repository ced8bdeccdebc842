// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

QString text(const char *literal)
{
    return QString::fromUtf8(literal);
}

QList<QCommandLineOption> valueOptions()
{
    return {
        {text("address"), text("IP address to listen on (127.0.0.1)."), text("address"), text("127.0.0.1")},
        {text("port"), text("Port to listen on; 0 takes a free one (8791)."), text("port"), text("8791")},
        {text("public-url"), text("Address of this server in checkout links (where it listens)."), text("url")},
        {text("database"), text("SQLite file ($XDG_DATA_HOME/quillo-backend/backend.db)."), text("file")},
        {text("engine"), text("pocketsphinx or openai (pocketsphinx)."), text("engine"), text("pocketsphinx")},
        {text("openai-base-url"), text("Server with OpenAI's transcription endpoint (https://api.openai.com/v1)."),
         text("url"), text("https://api.openai.com/v1")},
        {text("openai-model"), text("Model to ask that server for (whisper-1)."), text("model"), text("whisper-1")},
        {text("openai-key-file"), text("File that holds that server's key; none is sent without it."), text("file")},
        {text("free-tokens"), text("Tokens for a new device (3600)."), text("n"), text("3600")},
        {text("daily-free-tokens"), text("All free tokens of one day, UTC (unlimited)."), text("n")},
        {text("tokens-per-second"), text("Price of a started second of audio (1)."), text("n"), text("1")},
        {text("checkout"), text("manual credits tokens without a payment, none sells none (manual)."), text("provider"),
         text("manual")},
    };
}

[[noreturn]] void fail(const QString &message)
{
    throw SettingsError(message.toStdString());
}

/// Looks options up on the command line, in the configuration file, and among the defaults, in this order.
class Values {
public:
    explicit Values(const QCommandLineParser &parser) : m_parser(parser)
    {
        if (!parser.isSet(text("config"))) {
            return;
        }
        const auto path = parser.value(text("config"));
        const QSettings file(path, QSettings::IniFormat);
        if (!QFileInfo(path).isReadable() || file.status() != QSettings::NoError) {
            fail(text("--config: %1 can't be read").arg(path));
        }
        for (const auto &key : file.allKeys()) {
            const auto known = [&](const auto &option) { return option.names().contains(key); };
            if (!std::ranges::any_of(valueOptions(), known)) {
                fail(text("%1: there is no option \"%2\"").arg(path, key));
            }
            // A value with commas is read as a list.
            m_file.insert(key, file.value(key).toStringList().join(QLatin1Char(',')));
        }
    }

    QString operator[](const char *name) const
    {
        const auto option = text(name);
        return m_parser.isSet(option) ? m_parser.value(option) : m_file.value(option, m_parser.value(option));
    }

    qint64 number(const char *name, qint64 least, qint64 most) const
    {
        bool valid = false;
        const auto value = (*this)[name].toLongLong(&valid);
        if (!valid || value < least || value > most) {
            fail(text("--%1 must be a whole number from %2 to %3").arg(text(name)).arg(least).arg(most));
        }
        return value;
    }

    /// Without a "/" at its end; empty when the option is.
    std::string url(const char *name) const
    {
        auto value = (*this)[name];
        while (value.endsWith(QLatin1Char('/'))) {
            value.chop(1);
        }
        const QUrl url(value, QUrl::StrictMode);
        const auto isHttp = url.scheme() == text("https") || url.scheme() == text("http");
        if (!value.isEmpty() && (!url.isValid() || !isHttp || url.host().isEmpty())) {
            fail(text("--%1 must begin with https:// or http:// and name a server").arg(text(name)));
        }
        return value.toStdString();
    }

private:
    const QCommandLineParser &m_parser;
    QHash<QString, QString> m_file;
};

net::ip::tcp::endpoint endpoint(const Values &values)
{
    boost::system::error_code error;
    const auto address = net::ip::make_address(values["address"].toStdString(), error);
    if (error) {
        fail(text("--address must be an IP address"));
    }
    return {address, static_cast<uint16_t>(values.number("port", 0, 65535))};
}

QString database(const Values &values)
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const auto path = values["database"];
    return path.isEmpty() ? folder + text("/quillo-backend/backend.db") : path;
}

std::string readKey(const QString &path)
{
    constexpr qint64 longestKey = 4096;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(text("--openai-key-file: %1 can't be read").arg(path));
    }
    const auto key = file.read(longestKey).trimmed();
    const auto isPlain = [](char c) { return c > ' ' && c < '\x7f'; };
    if (key.isEmpty() || !std::ranges::all_of(key, isPlain)) {
        fail(text("--openai-key-file: %1 must hold one key and nothing else").arg(path));
    }
    return key.toStdString();
}

OpenAiOptions openAi(const Values &values)
{
    OpenAiOptions options{values.url("openai-base-url"), values["openai-model"].toStdString(), {}};
    if (const auto path = values["openai-key-file"]; !path.isEmpty()) {
        options.key = readKey(path);
    }
    const QUrl url(QString::fromStdString(options.baseUrl));
    const auto isLocal =
        url.host() == text("localhost") || url.host() == text("127.0.0.1") || url.host() == text("::1");
    if (!options.key.empty() && url.scheme() != text("https") && !isLocal) {
        fail(text("--openai-base-url must begin with https:// so that the key stays secret"));
    }
    if (options.baseUrl.empty() || options.model.empty()) {
        fail(text("--openai-base-url and --openai-model must not be empty"));
    }
    return options;
}

/// The value that `choices` gives to the option's text.
template <class T> T choice(const Values &values, const char *name, const QList<std::pair<QString, T>> &choices)
{
    QStringList names;
    for (const auto &[word, value] : choices) {
        if (word == values[name]) {
            return value;
        }
        names.append(word);
    }
    fail(text("--%1 must be %2").arg(text(name), names.join(text(" or "))));
}

Settings settingsOf(const Values &values)
{
    constexpr qint64 mostTokens = 1'000'000'000'000;
    Settings settings;
    settings.endpoint = endpoint(values);
    settings.database = database(values);
    settings.engine = choice<Settings::EngineKind>(
        values, "engine",
        {{text("pocketsphinx"), Settings::EngineKind::PocketSphinx}, {text("openai"), Settings::EngineKind::OpenAi}});
    if (settings.engine == Settings::EngineKind::OpenAi) {
        settings.openAi = openAi(values);
    }
    settings.grants.freeTokens = values.number("free-tokens", 0, mostTokens);
    if (!values["daily-free-tokens"].isEmpty()) {
        settings.grants.dailyPool = values.number("daily-free-tokens", 0, mostTokens);
    }
    settings.api.publicUrl = values.url("public-url");
    settings.api.tokensPerSecond = values.number("tokens-per-second", 0, 1'000'000);
    settings.api.manualCheckout = choice<bool>(values, "checkout", {{text("manual"), true}, {text("none"), false}});
    return settings;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(text("Transcribes recordings for Quillo over HTTP."));
    parser.addPositionalArgument(text("serve"), text("Start the server; the default."), text("[serve]"));
    const auto help = parser.addHelpOption();
    const auto version = parser.addVersionOption();
    parser.addOptions(valueOptions());
    parser.addOptions({{text("config"), text("INI file with any of the options that take a value."), text("file")},
                       {text("verbose"), text("Log each request, without what it says.")}});
    if (!parser.parse(arguments)) {
        fail(parser.errorText());
    }
    if (parser.isSet(help)) {
        return {parser.helpText(), {}};
    }
    if (parser.isSet(version)) {
        return {text("%1 %2\n").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()), {}};
    }
    if (const auto words = parser.positionalArguments(); !words.isEmpty() && words != QStringList{text("serve")}) {
        fail(text("there is no command \"%1\"").arg(words.join(QLatin1Char(' '))));
    }
    auto settings = settingsOf(Values(parser));
    settings.verbose = parser.isSet(text("verbose"));
    return {{}, settings};
}
