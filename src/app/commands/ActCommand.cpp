// SPDX-License-Identifier: MIT
#include "app/commands/ActCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/commands/RunningInstance.h"

int ActCommand::run(const QString &action)
{
    const auto failure = RunningInstance(QDBusConnection::sessionBus()).perform(action);
    return failure ? Output::fail(failure->sentence, failure->status) : ExitStatus::done;
}
