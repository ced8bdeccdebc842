// SPDX-License-Identifier: MIT
#pragma once

/// The program from its first line to its last.
class QuilloApp {
public:
    /// Runs until the program is told to end; returns its exit status.
    static int run(int argc, char *argv[]);
};
