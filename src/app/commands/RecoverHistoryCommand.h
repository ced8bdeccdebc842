// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace RecoverHistoryCommand {

/// Takes over what can be read in the damaged history at `path` and prints how much that was; a running program shows
/// it at once. Returns the exit status. A QCoreApplication exists.
int run(const QString &path);

} // namespace RecoverHistoryCommand
