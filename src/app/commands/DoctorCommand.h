// SPDX-License-Identifier: MIT
#pragma once

/// Prints what this desktop offers for dictation and what is missing, line by line, each with its remedy.
namespace DoctorCommand {

/// Needs a QGuiApplication on no display, whose event loop it runs; returns the exit status: failed if dictation can't
/// work.
int run();

} // namespace DoctorCommand
