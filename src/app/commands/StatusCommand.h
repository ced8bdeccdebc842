// SPDX-License-Identifier: MIT
#pragma once

/// Prints what the running program is doing.
namespace StatusCommand {

/// Needs a QCoreApplication; returns the exit status.
int run(bool asJson);

} // namespace StatusCommand
