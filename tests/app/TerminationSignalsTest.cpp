// SPDX-License-Identifier: MIT
#include "app/start/TerminationSignals.h"

#include "support/Await.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

TEST(TerminationSignalsTest, ASignalIsToldOnceAndLeavesTheErrnoOfWhatItInterrupts)
{
    const int descriptor = ::dup(STDERR_FILENO); // its number is the next to be given out
    ::close(descriptor);
    int told = 0;
    const TerminationSignals signals([&] { ++told; });
    std::raise(SIGHUP);
    EXPECT_TRUE(await([&] { return told == 1; }));

    ::close(descriptor); // the handler fails to write from now on
    errno = EINTR;
    std::raise(SIGTERM);
    EXPECT_EQ(errno, EINTR);
}
