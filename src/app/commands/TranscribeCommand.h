// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Prints the text of a sound file, through the same backend, consent and credential as a dictation.
namespace TranscribeCommand {

/// `path` "-" is standard input. Needs a QCoreApplication, whose event loop it runs; returns the exit status.
int run(const QString &path);

} // namespace TranscribeCommand
