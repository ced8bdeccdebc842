// SPDX-License-Identifier: MIT
#include "support/Log.h"

#include <iostream>
#include <mutex>

void logLine(std::string_view line)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::cerr << "quillo-backend: " << line << std::endl;
}
