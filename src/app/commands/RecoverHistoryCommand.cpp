// SPDX-License-Identifier: MIT
#include "app/commands/RecoverHistoryCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "store/TranscriptionStore.h"

using namespace Qt::StringLiterals;

int RecoverHistoryCommand::run(const QString &path)
{
    SystemClock clock;
    XdgFiles files;
    TranscriptionStore store(files, clock);
    const std::optional<qsizetype> count = store.recover(path);
    if (!count) {
        return Output::fail(u"%1 can't be read."_s.arg(path), ExitStatus::failed);
    }
    if (store.saveError()) {
        return Output::fail(
            u"The history can't be saved: %1"_s.arg(QString::fromStdString(store.saveError().message())),
            ExitStatus::failed);
    }
    Output::print(u"%1 taken over.\n"_s.arg(*count == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(*count)));
    return ExitStatus::done;
}
