// SPDX-License-Identifier: MIT
#include "app/start/forbidCoreDumps.h"

#include <QtGlobal>

#include <sys/prctl.h>
#include <sys/resource.h>

void forbidCoreDumps()
{
    if (qEnvironmentVariableIsSet("QUILLO_DEBUG")) {
        return;
    }
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    ::prctl(PR_SET_DUMPABLE, 0); // a core handler that reads from a pipe heeds no limit
}
