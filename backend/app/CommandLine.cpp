// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include "app/Backend.h"
#include "app/EngineChoice.h"
#include "app/OperatorCommands.h"
#include "app/Settings.h"
#include "support/Log.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

struct Command {
    QStringList words; ///< those in capitals stand for any word
    QString help;
    Settings (*settings)(const Options &);
    std::function<void(const Settings &, const QStringList &)> run;
};

void serve(const Settings &settings, const QStringList &)
{
    Backend backend(settings, makeEngine(settings));
    std::cout << "quillo-backend listening on " << backend.url() << std::endl;
    if (!backend.run()) {
        logLine("transcriptions that took too long were refused");
        flushLog();
        // Not every engine can be interrupted. The database is sound at any moment; see Ledger.
        std::_Exit(0);
    }
}

const QList<Command> &commands()
{
    static const QList<Command> all{
        {{u"serve"_s}, u"Start the server; the default."_s, settingsOf, serve},
        {{u"devices"_s, u"list"_s}, u"All devices, the oldest first."_s, storeSettingsOf, listDevices},
        {{u"devices"_s, u"show"_s, u"ID"_s}, u"One device."_s, storeSettingsOf, showDevice},
        {{u"devices"_s, u"grant"_s, u"ID"_s, u"TOKENS"_s},
         u"Add tokens, or take some (-N)."_s,
         storeSettingsOf,
         grantTokens},
        {{u"devices"_s, u"unmeter"_s, u"ID"_s}, u"Stop charging a device."_s, storeSettingsOf, unmeterDevice},
        {{u"devices"_s, u"meter"_s, u"ID"_s}, u"Charge it again."_s, storeSettingsOf, meterDevice},
        {{u"devices"_s, u"revoke"_s, u"ID"_s},
         u"Refuse a device's credential for ever."_s,
         storeSettingsOf,
         revokeDevice},
        {{u"ledger"_s},
         u"Every change to a balance, and whether they explain all balances."_s,
         storeSettingsOf,
         showLedger},
        {{u"ledger"_s, u"ID"_s}, u"Those of one device."_s, storeSettingsOf, showLedger},
        {{u"backup"_s, u"FILE"_s},
         u"Copy the SQLite database as it is now, also while it is used."_s,
         storeSettingsOf,
         backUp},
        {{u"restore"_s, u"FILE"_s}, u"Put such a copy where no database is yet."_s, storeSettingsOf, restore},
        {{u"check"_s},
         u"Say whether the database is sound and every balance explained."_s,
         storeSettingsOf,
         checkDatabase},
        {{u"engine"_s, u"test"_s, u"FILE"_s},
         u"Transcribe an MPEG-4 file and say how long it took."_s,
         settingsOf,
         testEngine},
        {{u"config"_s, u"check"_s},
         u"Read the configuration and say whether it is right."_s,
         settingsOf,
         checkConfiguration},
    };
    return all;
}

/// Returns the words that stand for those in capitals, or nothing when the command is another.
std::optional<QStringList> match(const Command &command, const QStringList &words)
{
    if (command.words.size() != words.size()) {
        return std::nullopt;
    }
    QStringList found;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (command.words[i].isUpper()) {
            found.append(words[i]);
        } else if (command.words[i] != words[i]) {
            return std::nullopt;
        }
    }
    return found;
}

QString describedCommands()
{
    auto text = u"Transcribes recordings for Quillo over HTTP.\n\nCommands:\n"_s;
    for (const auto &command : commands()) {
        text += u"  %1  %2\n"_s.arg(command.words.join(u' '), -25).arg(command.help);
    }
    return text + u"\nEach option can be set in the environment (QUILLO_BACKEND_FREE_TOKENS=10) and in the "
                  "configuration file (free-tokens = 10), too; the command line wins, then the environment."_s;
}

/// Moves the negative number that "grant" ends with to where the parser does not take it for an option.
QStringList withNumberAtEnd(QStringList arguments)
{
    const auto isNegative = [](const QString &word) { return word.size() > 1 && word[0] == u'-' && word[1].isDigit(); };
    const auto number = std::ranges::find_if(arguments, isNegative);
    if (number != arguments.end() && arguments.contains(u"grant"_s)) {
        const auto word = *number;
        arguments.erase(number);
        arguments.append({u"--"_s, word});
    }
    return arguments;
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(describedCommands());
    parser.addPositionalArgument(u"command"_s, u"What to do, see above."_s, u"[command]"_s);
    const auto help = parser.addHelpOption();
    const auto version = parser.addVersionOption();
    parser.addOptions(Options::all());
    if (!parser.parse(withNumberAtEnd(arguments))) {
        failSettings(parser.errorText());
    }
    if (parser.isSet(help)) {
        std::cout << parser.helpText().toStdString();
        return 0;
    }
    if (parser.isSet(version)) {
        std::cout << "quillo-backend " << QCoreApplication::applicationVersion().toStdString() << "\n";
        return 0;
    }
    auto words = parser.positionalArguments();
    if (words.isEmpty()) {
        words.append(u"serve"_s);
    }
    for (const auto &command : commands()) {
        if (const auto found = match(command, words)) {
            auto settings = command.settings(Options(parser));
            settings.again = [&] { return command.settings(Options(parser)); };
            command.run(settings, *found);
            return 0;
        }
    }
    failSettings(u"there is no command \"%1\"; --help tells which there are"_s.arg(words.join(u' ')));
}

} // namespace

int runCommandLine(const QStringList &arguments)
{
    try {
        return run(arguments);
    } catch (const SettingsError &error) {
        logLine(error.what());
        return 2;
    } catch (const std::exception &error) {
        logLine(error.what());
        return 1;
    }
}
