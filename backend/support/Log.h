// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Writes one line for the operator to the standard error stream; any thread. Callers keep secrets, audio and text out.
void logLine(std::string_view line);

/// The same without the program's name before it.
void writeLine(std::string_view line);
