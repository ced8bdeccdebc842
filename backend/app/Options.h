// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>
#include <QHash>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <string>
#include <vector>

/// A wrong value on the command line, in the environment or in the configuration file, in one line for the operator
/// that says where it stands.
class SettingsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

[[noreturn]] void failSettings(const QString &message);

/// The server's options as they are set: on the command line (`--free-tokens 10`), else in the environment
/// (`QUILLO_BACKEND_FREE_TOKENS=10`), else in the TOML file that the option "config" names (`free-tokens = 10`), else
/// by default.
class Options {
public:
    /// Lists the options that take a value.
    static QList<QCommandLineOption> all();

    /// Reads the configuration file. Throws SettingsError for what can't be read and for keys that are no options.
    explicit Options(const QCommandLineParser &parser);

    QString operator[](const QString &name) const;

    /// All throw SettingsError, naming the place, when the value is another.
    qint64 number(const QString &name, qint64 least, qint64 most) const;
    /// The address without a "/" at its end; it is empty when the option is.
    std::string url(const QString &name) const;
    std::vector<std::string> urls(const QString &name) const;
    /// The items of a list that are separated by commas (in the file: an array).
    QStringList list(const QString &name) const;
    /// What is in the file that the option `name` names, else the credential `credential` that systemd passed
    /// ($CREDENTIALS_DIRECTORY), else an empty text. Warns the operator of a file that everyone can read.
    std::string secret(const QString &name, const QString &credential) const;

    /// "config.toml:3: free-tokens", or the option's name elsewhere.
    QString placeOf(const QString &name) const;
    [[noreturn]] void fail(const QString &name, const QString &message) const;

private:
    struct Value {
        QString text;
        QString place;
    };

    std::string url(const QString &name, QString value) const;
    void readFile(const QString &path);

    const QCommandLineParser &m_parser;
    QHash<QString, Value> m_values; ///< of the environment and the file
};
