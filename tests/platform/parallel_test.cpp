// SPDX-License-Identifier: GPL-3.0-or-later
#include "Parallel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace chronomender {
namespace {

TEST(ParallelTest, AStopLeavesAPrefixAndEachIndexRunsAtMostOnce) {
    for (const std::size_t count : {0U, 1U, 2U, 15U, 16U, 17U, 129U, 10'000U}) {
        for (const std::size_t stopAt : {0U, 1U, 777U, 10'001U}) {
            std::vector<int> runs(count, 0); // no two threads share an element
            std::atomic<std::size_t> done{0};
            const auto run = [&](std::size_t i) {
                ++runs[i];
                ++done;
            };
            const std::size_t prefix = parallelFor(count, run, [&] { return done >= stopAt; });
            EXPECT_EQ(done, prefix);
            EXPECT_GE(prefix, std::min(stopAt, count));
            for (std::size_t i = 0; i < count; ++i)
                ASSERT_EQ(runs[i], i < prefix ? 1 : 0) << "index " << i << " of " << prefix;
            EXPECT_TRUE(stopAt != 0 || prefix == 0);
        }
        std::atomic<std::size_t> sum{0};
        EXPECT_EQ(parallelFor(count, [&](std::size_t) { ++sum; }), count);
        EXPECT_EQ(sum, count);
    }
}

TEST(ParallelTest, AStopIsNotTakenBack) {
    std::atomic<int> asked{0};
    const auto stopOnce = [&] { return asked++ == 3; };
    const std::size_t prefix = parallelFor(
        10'000, [](std::size_t) {}, stopOnce);
    EXPECT_GT(prefix, 0U);
    EXPECT_LT(prefix, 1000U);
}

TEST(ParallelTest, CallsInsideCallsAndFromSeveralThreadsAllEnd) {
    std::atomic<std::size_t> sum{0};
    const auto nested = [&] {
        parallelFor(40, [&](std::size_t) { parallelFor(25, [&](std::size_t) { ++sum; }); });
    };
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; ++i)
        callers.emplace_back(nested);
    for (std::thread &caller : callers)
        caller.join();
    EXPECT_EQ(sum, 4U * 40 * 25);
}

TEST(ParallelTest, UsesMoreThanOneThreadWhereThereAreMoreProcessors) {
    if (std::thread::hardware_concurrency() < 2)
        GTEST_SKIP() << "this machine has one processor";
    std::atomic<int> arrived{0};
    // Two indices that wait for each other end only on two threads.
    parallelFor(2, [&](std::size_t) {
        ++arrived;
        while (arrived < 2)
            std::this_thread::yield();
    });
    EXPECT_EQ(arrived, 2);
}

} // namespace
} // namespace chronomender
