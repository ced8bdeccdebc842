// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Does what the command line says, to the end. `arguments` begin with the program's name. Returns the exit status: 0,
/// or 1 when it could not be done, or 2 when it was not understood; the standard error stream says what is wrong.
int runCommandLine(const QStringList &arguments);
