// SPDX-License-Identifier: MIT
#pragma once

/// Prints what this desktop offers for dictation and what is missing, line by line, each with its remedy. Needs a
/// QGuiApplication on no display, whose event loop it runs. Returns the exit status: failed if dictation can't work.
int doctorCommand();
