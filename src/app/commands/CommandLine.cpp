// SPDX-License-Identifier: MIT
#include "app/commands/CommandLine.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct CommandInfo {
    QStringView name;
    QStringView argument;
    QStringView help;
    /// The running program performs it, under the same name.
    bool isAction = false;
};

constexpr std::array commands{
    CommandInfo{u"press", u"", u"Hold the dictation shortcut", true},
    CommandInfo{u"release", u"", u"Let go of it", true},
    CommandInfo{u"toggle", u"", u"Start dictating, or finish and paste", true},
    CommandInfo{u"cancel", u"", u"Drop the recording", true},
    CommandInfo{u"history", u"", u"Show the history", true},
    CommandInfo{u"edit-groups", u"", u"Show the history with the group editor", true},
    CommandInfo{u"settings", u"", u"Show the settings", true},
    CommandInfo{u"next-group", u"", u"Make the next group the current one", true},
    CommandInfo{u"buy-tokens", u"", u"Open the page where tokens are bought", true},
    CommandInfo{u"status", u"[--json]", u"Print what the program is doing"},
    CommandInfo{u"quit", u"", u"End the program", true},
    CommandInfo{u"transcribe", u"FILE", u"Print the text of a recording; - reads standard input"},
    CommandInfo{u"history", u"--recover FILE", u"Take over what can be read in a damaged history"},
    CommandInfo{u"doctor", u"", u"Print what this desktop offers for dictation, and what is missing"},
};

QString help()
{
    QString text = u"Usage: quillo [COMMAND]\n\n"
                   "Without a command Quillo starts, or shows its history if it runs already.\n"
                   "Hold the dictation shortcut, speak, let go: the words appear in the program in front.\n\n"
                   "Commands:\n"_s;
    for (const CommandInfo &command : commands) {
        const QString usage = u"%1 %2"_s.arg(command.name, command.argument);
        text += u"  %1  %2\n"_s.arg(usage, -22).arg(command.help);
    }
    text += u"\nOptions:\n"
            "  -h, --help        Print this\n"
            "  -v, --version     Print the version\n\n"
            "Exit status: 0 done, 1 failed, 2 the command line is wrong, 3 Quillo isn't running.\n"_s;
    return text;
}

} // namespace

CommandLine::Request CommandLine::parse(const QStringList &words, const QString &version)
{
    QCommandLineParser parser;
    const QCommandLineOption helpOption(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption versionOption(QStringList{u"v"_s, u"version"_s});
    const QCommandLineOption jsonOption(u"json"_s);
    const QCommandLineOption recoverOption(u"recover"_s, QString(), u"file"_s);
    parser.addOptions({helpOption, versionOption, jsonOption, recoverOption});
    if (!parser.parse(QStringList{u"quillo"_s} + words)) {
        return Mistake{parser.errorText()};
    }
    if (parser.isSet(helpOption)) {
        return Print{help()};
    }
    if (parser.isSet(versionOption)) {
        return Print{u"quillo %1\n"_s.arg(version)};
    }

    const QStringList given = parser.positionalArguments();
    const QString name = given.value(0);
    if (parser.isSet(jsonOption) && name != u"status") {
        return Mistake{u"--json belongs to the command status."_s};
    }
    if (parser.isSet(recoverOption) && name != u"history") {
        return Mistake{u"--recover belongs to the command history."_s};
    }
    if (given.isEmpty()) {
        return Start{};
    }
    const auto *const command = std::ranges::find(commands, name, &CommandInfo::name);
    if (command == commands.end()) {
        return Mistake{u"There is no command \"%1\"."_s.arg(name)};
    }
    const bool takesFile = name == u"transcribe";
    if (given.size() != (takesFile ? 2 : 1)) {
        return Mistake{takesFile ? u"transcribe takes one file."_s : u"%1 takes no argument."_s.arg(name)};
    }
    if (takesFile) {
        return Transcribe{given.at(1)};
    }
    if (parser.isSet(recoverOption)) {
        return RecoverHistory{parser.value(recoverOption)};
    }
    if (name == u"status") {
        return Status{parser.isSet(jsonOption)};
    }
    return command->isAction ? Request(Act{name}) : Request(Doctor{});
}
