// SPDX-License-Identifier: MIT
#include "app/start/forbidCoreDumps.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/prctl.h>
#include <sys/resource.h>

TEST(ForbidCoreDumpsTest, NobodyReadsTheMemoryUnlessAFaultIsLookedFor)
{
    const auto dumpableAfterwards = [] {
        forbidCoreDumps();
        rlimit limit{};
        ::getrlimit(RLIMIT_CORE, &limit);
        std::_Exit(2 * int(limit.rlim_max != 0) + ::prctl(PR_GET_DUMPABLE));
    };
    EXPECT_EXIT(dumpableAfterwards(), testing::ExitedWithCode(0), "");
    ::setenv("QUILLO_DEBUG", "1", 1);
    EXPECT_EXIT(
        dumpableAfterwards(), [](int status) { return !testing::ExitedWithCode(0)(status); }, "");
    ::unsetenv("QUILLO_DEBUG");
}
