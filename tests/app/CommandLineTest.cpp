// SPDX-License-Identifier: MIT
#include "app/commands/CommandLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What a request comes to, as one line.
QString described(const QString &words)
{
    struct Describe {
        QString operator()(const CommandLine::Start &) const { return u"start"_s; }
        QString operator()(const CommandLine::Print &print) const { return print.text.section(u'\n', 0, 0); }
        QString operator()(const CommandLine::Act &act) const { return u"act "_s + act.action; }
        QString operator()(const CommandLine::Status &status) const { return status.asJson ? u"json"_s : u"status"_s; }
        QString operator()(const CommandLine::Transcribe &command) const { return u"transcribe "_s + command.path; }
        QString operator()(const CommandLine::Doctor &) const { return u"doctor"_s; }
        QString operator()(const CommandLine::RecoverHistory &command) const { return u"recover "_s + command.path; }
        QString operator()(const CommandLine::Mistake &mistake) const { return u"! "_s + mistake.text; }
    };
    return std::visit(Describe(), CommandLine::parse(words.split(u' ', Qt::SkipEmptyParts), u"1.2"_s));
}

} // namespace

TEST(CommandLineTest, UnderstandsEachCommandAndNamesEachMistake)
{
    const std::initializer_list<std::pair<QString, QString>> cases{
        {{}, u"start"_s},
        {u"-h"_s, u"Usage: quillo [COMMAND]"_s},
        {u"status --help"_s, u"Usage: quillo [COMMAND]"_s},
        {u"--version"_s, u"quillo 1.2"_s},
        {u"press"_s, u"act press"_s},
        {u"next-group"_s, u"act next-group"_s},
        {u"quit"_s, u"act quit"_s},
        {u"status"_s, u"status"_s},
        {u"status --json"_s, u"json"_s},
        {u"--json status"_s, u"json"_s},
        {u"doctor"_s, u"doctor"_s},
        {u"transcribe -"_s, u"transcribe -"_s},
        {u"transcribe -- -odd.wav"_s, u"transcribe -odd.wav"_s},
        {u"transcribe"_s, u"! transcribe takes one file."_s},
        {u"transcribe a b"_s, u"! transcribe takes one file."_s},
        {u"history"_s, u"act history"_s},
        {u"history --recover a.json"_s, u"recover a.json"_s},
        {u"--recover a.json doctor"_s, u"! --recover belongs to the command history."_s},
        {u"press twice"_s, u"! press takes no argument."_s},
        {u"--json press"_s, u"! --json belongs to the command status."_s},
        {u"Press"_s, u"! There is no command \"Press\"."_s},
        {u"--loud"_s, u"! Unknown option 'loud'."_s},
    };
    for (const auto &[words, expected] : cases) {
        EXPECT_EQ(described(words).toStdString(), expected.toStdString()) << qPrintable(words);
    }
}
