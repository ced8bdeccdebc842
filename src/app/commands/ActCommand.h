// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Has the running program do something.
namespace ActCommand {

/// `action` is one of RemoteControl's. Needs a QCoreApplication; returns the exit status.
int run(const QString &action);

} // namespace ActCommand
