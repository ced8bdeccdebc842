// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string_view>

/// Writes one line for the operator to the standard error stream; any thread. Callers keep secrets, audio and text out.
/// Another thread writes it, so nobody waits for who reads the log; while that one does not, lines beyond some
/// thousands are counted and left out.
void logLine(std::string_view line);

/// The same without the program's name before it.
void writeLine(std::string_view line);

/// Waits until what was logged has been written, but not for longer than this.
void flushLog(std::chrono::milliseconds longest = std::chrono::seconds(1));
