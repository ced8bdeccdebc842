// SPDX-License-Identifier: MIT
#include "platform/freedesktop/SystemClock.h"

#include "support/Await.h"

#include <gtest/gtest.h>

#include <memory>

using namespace std::chrono_literals;

TEST(SystemClockTest, TimersFireOnceOrAgainAndAgainUntilTheyAreDestroyed)
{
    SystemClock clock;
    int once = 0;
    int often = 0;
    int never = 0;
    bool woken = false;
    const auto single = clock.after(1ms, [&] { ++once; });
    const auto repeated = clock.every(1ms, [&] { ++often; });
    clock.after(1ms, [&] { ++never; }).reset();
    clock.every(1ms, [&] { ++never; }).reset();
    const auto sleeper = [](SystemClock &time, bool &done) -> QCoro::Task<void> {
        co_await time.sleep(1ms);
        done = true;
    }(clock, woken);
    EXPECT_EQ(once + often + (woken ? 1 : 0), 0) << "not from within the call";
    EXPECT_TRUE(await([&] { return once > 0 && often > 3 && woken; }));
    EXPECT_EQ(once, 1);
    EXPECT_EQ(never, 0);
}

TEST(SystemClockTest, CallbackMayDestroyItsOwnTimer)
{
    SystemClock clock;
    for (const auto start : {&Clock::after, &Clock::every}) {
        std::unique_ptr<Clock::Timer> timer;
        int calls = 0;
        const auto kept = std::make_shared<int>(1);
        timer = (clock.*start)(1ms, [&timer, &calls, kept] {
            timer.reset();
            calls += *kept; // what the callback holds outlives the timer
        });
        bool later = false;
        ASSERT_TRUE(await([&] { return calls > 0; }));
        const auto end = clock.after(5ms, [&] { later = true; });
        ASSERT_TRUE(await([&] { return later; }));
        EXPECT_EQ(calls, 1);
        EXPECT_EQ(kept.use_count(), 1) << "the callback is gone";
    }
}
