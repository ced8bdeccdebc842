// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Prints the text of a sound file, through the same backend, consent and credential as a dictation; "-" reads standard
/// input. Needs a QCoreApplication, whose event loop it runs; returns the exit status.
int transcribeCommand(const QString &path);
