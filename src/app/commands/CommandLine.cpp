// SPDX-License-Identifier: MIT
#include "app/commands/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct CommandInfo {
    QStringView name;
    QStringView argument;
    /// As the sources have it.
    const char *help;
    /// The running program performs it, under the same name.
    bool isAction = false;
};

constexpr std::array commands{
    CommandInfo{u"press", u"", QT_TRANSLATE_NOOP("CommandLine", "Hold the dictation shortcut"), true},
    CommandInfo{u"release", u"", QT_TRANSLATE_NOOP("CommandLine", "Let go of it"), true},
    CommandInfo{u"toggle", u"", QT_TRANSLATE_NOOP("CommandLine", "Start dictating, or finish and paste"), true},
    CommandInfo{u"cancel", u"", QT_TRANSLATE_NOOP("CommandLine", "Drop the recording"), true},
    CommandInfo{u"history", u"", QT_TRANSLATE_NOOP("CommandLine", "Show the history"), true},
    CommandInfo{u"edit-groups", u"", QT_TRANSLATE_NOOP("CommandLine", "Show the history with the group editor"), true},
    CommandInfo{u"settings", u"", QT_TRANSLATE_NOOP("CommandLine", "Show the settings"), true},
    CommandInfo{u"next-group", u"", QT_TRANSLATE_NOOP("CommandLine", "Make the next group the current one"), true},
    CommandInfo{u"buy-tokens", u"", QT_TRANSLATE_NOOP("CommandLine", "Open the page where tokens are bought"), true},
    CommandInfo{u"status", u"[--json]", QT_TRANSLATE_NOOP("CommandLine", "Print what the program is doing")},
    CommandInfo{u"quit", u"", QT_TRANSLATE_NOOP("CommandLine", "End the program"), true},
    CommandInfo{u"transcribe", u"FILE",
                QT_TRANSLATE_NOOP("CommandLine", "Print the text of a recording; - reads standard input")},
    CommandInfo{u"history", u"--recover FILE",
                QT_TRANSLATE_NOOP("CommandLine", "Take over what can be read in a damaged history")},
    CommandInfo{u"doctor", u"",
                QT_TRANSLATE_NOOP("CommandLine", "Print what this desktop offers for dictation, and what is missing")},
};

QString help()
{
    QString text = Words::tr("Usage: quillo [COMMAND]\n\n"
                             "Without a command Quillo starts, or shows its history if it runs already.\n"
                             "Hold the dictation shortcut, speak, let go: the words appear in the program in front.\n\n"
                             "Commands:\n");
    for (const CommandInfo &command : commands) {
        const QString usage = u"%1 %2"_s.arg(command.name, command.argument);
        text += u"  %1  %2\n"_s.arg(usage, -22).arg(Words::tr(command.help));
    }
    text += Words::tr("\nOptions:\n"
                      "  -h, --help        Print this\n"
                      "  -v, --version     Print the version\n\n"
                      "Exit status: 0 done, 1 failed, 2 the command line is wrong, 3 Quillo isn't running.\n");
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
        return Mistake{Words::tr("--json belongs to the command status.")};
    }
    if (parser.isSet(recoverOption) && name != u"history") {
        return Mistake{Words::tr("--recover belongs to the command history.")};
    }
    if (given.isEmpty()) {
        return Start{};
    }
    const auto *const command = std::ranges::find(commands, name, &CommandInfo::name);
    if (command == commands.end()) {
        return Mistake{Words::tr("There is no command \"%1\".").arg(name)};
    }
    const bool takesFile = name == u"transcribe";
    if (given.size() != (takesFile ? 2 : 1)) {
        return Mistake{takesFile ? Words::tr("transcribe takes one file.")
                                 : Words::tr("%1 takes no argument.").arg(name)};
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
