// SPDX-License-Identifier: MIT
#include "app/commands/RecoverHistoryCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "store/TranscriptionStore.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(RecoverHistory)
};

} // namespace

int RecoverHistoryCommand::run(const QString &path)
{
    SystemClock clock;
    XdgFiles files;
    TranscriptionStore store(files, clock);
    const std::optional<qsizetype> count = store.recover(path);
    if (!count) {
        return Output::fail(Words::tr("%1 can't be read.").arg(path), ExitStatus::failed);
    }
    if (store.saveError()) {
        return Output::fail(
            Words::tr("The history can't be saved: %1").arg(QString::fromStdString(store.saveError().message())),
            ExitStatus::failed);
    }
    Output::print(*count == 1 ? Words::tr("1 entry taken over.\n")
                              : Words::tr("%n entries taken over.\n", nullptr, int(*count)));
    return ExitStatus::done;
}
