// SPDX-License-Identifier: MIT
#include "app/Options.h"

#include "support/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QUrl>

#include <toml++/toml.h>

#include <algorithm>
#include <fstream>

using namespace Qt::StringLiterals;

namespace {

QCommandLineOption option(const char *name, const char *help, const char *value, const char *standard = "")
{
    return {QString::fromLatin1(name), QString::fromLatin1(help), QString::fromLatin1(value),
            QString::fromLatin1(standard)};
}

const QString variablePrefix = u"QUILLO_BACKEND_"_s;

QString variableOf(const QString &name)
{
    return variablePrefix + name.toUpper().replace(u'-', u'_');
}

bool isKnown(const QString &name)
{
    return std::ranges::any_of(Options::all(), [&](const auto &known) { return known.names().contains(name); });
}

/// Returns the value as it would stand on the command line, or null when it can't stand there.
QString textOf(const toml::node &node)
{
    if (const auto *text = node.as_string()) {
        return text->get().empty() ? u""_s : QString::fromStdString(text->get());
    }
    if (const auto *number = node.as_integer()) {
        return QString::number(number->get());
    }
    if (const auto *array = node.as_array()) {
        QStringList items;
        for (const auto &item : *array) {
            items.append(textOf(item));
            if (items.last().isNull()) {
                return {};
            }
        }
        return items.isEmpty() ? u""_s : items.join(u',');
    }
    return {};
}

} // namespace

void failSettings(const QString &message)
{
    throw SettingsError(message.toStdString());
}

QList<QCommandLineOption> Options::all()
{
    return {
        option("config", "TOML file with any of the other options.", "file"),
        option("address", "IP address to listen on (127.0.0.1).", "address", "127.0.0.1"),
        option("port", "Port to listen on; 0 takes a free one (8791).", "port", "8791"),
        option("public-url", "Address of this server in checkout links (where it listens).", "url"),
        option("monitor", "Address and port for /healthz, /readyz and /metrics alone (where it listens).", "endpoint"),
        option("trusted-proxies", "IP addresses or blocks (10.0.0.0/8) whose X-Forwarded-For tells the client's.",
               "list"),
        option("connections", "Connections at a time; for more, idle ones are closed (12000).", "n", "12000"),
        option("connections-per-address", "Connections of one client address at a time; 0: no limit (256).", "n",
               "256"),
        option("transcriptions-per-device", "Uploads of one device at a time; 0: no limit (3).", "n", "3"),
        option(
            "decoding-per-device",
            "Seconds for which the recordings of one device are decoded at once; regained in ten times as long (60).",
            "seconds", "60"),
        option("registrations-per-hour", "New devices per client address; 0: no limit (60).", "n", "60"),
        option("stop-timeout", "Seconds for running transcriptions when the server stops; then they are refused (120).",
               "n", "120"),
        option("access-log", "json writes a line per request on the standard error stream (none).", "format", "none"),
        option("database", "SQLite file or postgresql:// URI ($XDG_DATA_HOME/quillo-backend/backend.db).", "database"),
        option("database-file", "File that holds that URI, if it has a password.", "file"),
        option("engine", "pocketsphinx, openai, command or wyoming (pocketsphinx).", "engine", "pocketsphinx"),
        option("engine-queue", "Recordings that may wait for the engine or be in it (openai: 256, others: 8).", "n"),
        option("language", "Language spoken where a request names none, such as en; recognised without it.",
               "language"),
        option("command", "Program and arguments: {file}, or standard input, is the recording; {language}; {prompt}.",
               "list"),
        option("command-timeout", "Seconds for a transcription (110).", "seconds", "110"),
        option("command-memory", "MiB that the program may have; 0: no limit (0).", "n", "0"),
        option("command-cpu", "Seconds of processor time for the program; 0: no limit (0).", "seconds", "0"),
        option("command-concurrency", "Programs at the same time (1).", "n", "1"),
        option("wyoming-server", "Host and port of a speech-to-text server of the Wyoming protocol.", "server"),
        option("wyoming-timeout", "Seconds for a transcription (110).", "seconds", "110"),
        option("wyoming-concurrency", "Transcriptions at the same time (1).", "n", "1"),
        option("openai-base-url",
               "Servers with OpenAI's transcription endpoint, the first that works (https://api.openai.com/v1).",
               "list", "https://api.openai.com/v1"),
        option("openai-model", "Model to ask that server for (whisper-1).", "model", "whisper-1"),
        option("openai-key-file", "File that holds that server's key; none is sent without it.", "file"),
        option("openai-prompt", "Spellings and style for that server to follow.", "text"),
        option("openai-timeout", "Seconds for a transcription with its repetitions (110).", "seconds", "110"),
        option("openai-attempts", "How often a transcription is tried (3).", "n", "3"),
        option("openai-concurrency", "Transcriptions at the same time (8).", "n", "8"),
        option("free-tokens", "Tokens for a new device (3600).", "n", "3600"),
        option("daily-free-tokens", "All free tokens of one day, UTC (unlimited).", "n"),
        option("tokens-per-second", "Price of a started second of audio (1).", "n", "1"),
        option("checkout",
               "manual credits tokens without a payment, stripe sells them, none does neither "
               "(manual).",
               "provider", "manual"),
        option("packs", "Tokens=price in the currency's smallest unit (3600=199,36000=1499,360000=9999).", "list",
               "3600=199,36000=1499,360000=9999"),
        option("currency", "ISO 4217 code of the prices (eur).", "code", "eur"),
        option("stripe-key-file", "File that holds Stripe's secret key.", "file"),
        option("stripe-webhook-secret-file", "File that holds the secret of Stripe's webhook.", "file"),
        option("stripe-base-url", "Server with Stripe's API (https://api.stripe.com).", "url",
               "https://api.stripe.com"),
    };
}

Options::Options(const QCommandLineParser &parser) : m_parser(parser)
{
    for (const auto &known : all()) {
        const auto name = known.names().constFirst();
        const auto variable = variableOf(name);
        if (qEnvironmentVariableIsSet(variable.toLatin1().constData())) {
            m_values.insert(name, {qEnvironmentVariable(variable.toLatin1().constData()), variable});
        }
    }
    for (const auto &variable : QProcessEnvironment::systemEnvironment().keys()) {
        const auto isMeant = [&](const auto &known) { return variableOf(known.names().constFirst()) == variable; };
        if (variable.startsWith(variablePrefix) && !std::ranges::any_of(all(), isMeant)) {
            failSettings(variable + u" is no option"_s);
        }
    }
    if (const auto path = (*this)[u"config"_s]; !path.isEmpty()) {
        readFile(path);
    }
}

void Options::readFile(const QString &path)
{
    std::ifstream stream(QFile::encodeName(path).toStdString());
    if (!stream || QFileInfo(path).isDir()) {
        fail(u"config"_s, u"%1 can't be read"_s.arg(path));
    }
    toml::table table;
    try {
        table = toml::parse(stream, std::string_view(path.toStdString()));
    } catch (const toml::parse_error &error) {
        failSettings(u"%1:%2: %3"_s.arg(path)
                         .arg(error.source().begin.line)
                         .arg(QString::fromUtf8(error.description().data(),
                                                static_cast<qsizetype>(error.description().size()))));
    }
    for (const auto &[key, node] : table) {
        const auto name = QString::fromUtf8(key.data(), static_cast<qsizetype>(key.length()));
        const auto place = u"%1:%2: %3"_s.arg(path).arg(key.source().begin.line).arg(name);
        const auto text = textOf(node);
        if (!isKnown(name) || name == u"config"_s) {
            failSettings(place + u" is no option"_s);
        }
        if (text.isNull()) {
            failSettings(place + u" must be a text, a whole number or a list of these"_s);
        }
        if (!m_values.contains(name)) {
            m_values.insert(name, {text, place});
        }
    }
}

QString Options::operator[](const QString &name) const
{
    return m_parser.isSet(name) ? m_parser.value(name) : m_values.value(name, {m_parser.value(name), {}}).text;
}

QString Options::placeOf(const QString &name) const
{
    return m_parser.isSet(name) || !m_values.contains(name) ? u"--"_s + name : m_values[name].place;
}

void Options::fail(const QString &name, const QString &message) const
{
    failSettings(placeOf(name) + u' ' + message);
}

qint64 Options::number(const QString &name, qint64 least, qint64 most) const
{
    bool valid = false;
    const auto value = (*this)[name].toLongLong(&valid);
    if (!valid || value < least || value > most) {
        fail(name, u"must be a whole number from %1 to %2"_s.arg(least).arg(most));
    }
    return value;
}

std::string Options::url(const QString &name) const
{
    return url(name, (*this)[name]);
}

std::vector<std::string> Options::urls(const QString &name) const
{
    std::vector<std::string> urls;
    for (const auto &item : list(name)) {
        urls.push_back(url(name, item));
    }
    return urls;
}

std::string Options::url(const QString &name, QString value) const
{
    while (value.endsWith(u'/')) {
        value.chop(1);
    }
    const QUrl url(value, QUrl::StrictMode);
    const auto isHttp = url.scheme() == u"https"_s || url.scheme() == u"http"_s;
    if (!value.isEmpty() && (!url.isValid() || !isHttp || url.host().isEmpty())) {
        fail(name, u"must begin with https:// or http:// and name a server"_s);
    }
    return value.toStdString();
}

QStringList Options::list(const QString &name) const
{
    auto items = (*this)[name].split(u',', Qt::SkipEmptyParts);
    for (auto &item : items) {
        item = item.trimmed();
    }
    return items;
}

std::string Options::secret(const QString &name, const QString &credential) const
{
    constexpr qint64 longest = 4096;
    auto path = (*this)[name];
    if (path.isEmpty()) {
        const auto folder = qEnvironmentVariable("CREDENTIALS_DIRECTORY");
        path = folder.isEmpty() ? QString() : folder + u'/' + credential;
        if (path.isEmpty() || !QFile::exists(path)) {
            return {};
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(name, u"names %1, which can't be read"_s.arg(path));
    }
    const auto key = file.read(longest).trimmed();
    const auto isPlain = [](char c) { return c > ' ' && c < '\x7f'; };
    if (key.isEmpty() || !std::ranges::all_of(key, isPlain)) {
        fail(name, u"names %1, which must hold one key and nothing else"_s.arg(path));
    }
    if (file.permissions().testFlag(QFile::ReadOther)) {
        logLine("warning: every user of this machine can read " + path.toStdString());
    }
    return key.toStdString();
}
