// SPDX-License-Identifier: MIT
#include "support/Log.h"

#include <iostream>
#include <mutex>
#include <string>

void logLine(std::string_view line)
{
    writeLine("quillo-backend: " + std::string(line));
}

void writeLine(std::string_view line)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::cerr << line << std::endl;
}
