// SPDX-License-Identifier: GPL-3.0-or-later
#include "MainThread.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace chronomender {
namespace {

using mainThread::CallResult;

class MainThreadTest : public testing::Test {
protected:
    MainThreadTest() { mainThread::initialise(); }
    ~MainThreadTest() override { mainThread::beginShutdown(); }

    /// Lets the main thread do what it was handed until `isDone`.
    template<class Condition>
    void runUntil(Condition isDone) {
        while (!isDone())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
};

TEST_F(MainThreadTest, WorkIsDoneOnTheMainThreadInOrderAndTheCallerWaits) {
    std::vector<int> order; // touched by the main thread only
    auto worker = std::async(std::launch::async, [&] {
        EXPECT_FALSE(mainThread::isCurrent());
        mainThread::post([&] { order.push_back(1); });
        const auto result = mainThread::callAndWait([&] {
            EXPECT_TRUE(mainThread::isCurrent());
            order.push_back(2);
        });
        EXPECT_EQ(result, CallResult::Done);
        mainThread::post([&] { order.push_back(3); });
    });
    runUntil([&] { return order.size() == 3; });
    worker.get();
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
    // On the main thread a call runs at once and a post later.
    mainThread::post([&] { order.push_back(5); });
    EXPECT_EQ(mainThread::callAndWait([&] { order.push_back(4); }), CallResult::Done);
    EXPECT_EQ(order.back(), 4);
    runUntil([&] { return order.back() == 5; });
}

TEST_F(MainThreadTest, AShutdownReleasesCallersThatWaitAndRunsNothingMore) {
    std::atomic<int> runs{0};
    std::promise<void> isUnderWay;
    auto waiting = std::async(std::launch::async, [&] {
        mainThread::post([&] { ++runs; });
        isUnderWay.set_value();
        return mainThread::callAndWait([&] { ++runs; });
    });
    isUnderWay.get_future().wait();
    mainThread::beginShutdown();
    EXPECT_EQ(waiting.get(), CallResult::Cancelled); // whether it already waited or came too late
    EXPECT_EQ(mainThread::callAndWait([&] { ++runs; }), CallResult::Cancelled);
    mainThread::post([&] { ++runs; });
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 0);
}

TEST_F(MainThreadTest, AShutdownFromInsideHandedWorkLetsThatWorkEnd) {
    auto first = std::async(std::launch::async, [] {
        return mainThread::callAndWait([] { mainThread::beginShutdown(); });
    });
    runUntil([&] { return first.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    EXPECT_EQ(first.get(), CallResult::Done);
}

TEST_F(MainThreadTest, ManyWorkersNeverLoseACallAcrossAShutdown) {
    constexpr int callsEach = 500;
    int runs = 0; // touched by the main thread only
    std::atomic<int> done{0}, cancelled{0};
    std::vector<std::thread> workers;
    for (int i = 0; i < 4; ++i)
        workers.emplace_back([&] {
            for (int call = 0; call < callsEach; ++call)
                (mainThread::callAndWait([&] { ++runs; }) == CallResult::Done ? done : cancelled)++;
        });
    runUntil([&] { return done > 600; });
    mainThread::beginShutdown();
    for (std::thread &worker : workers)
        worker.join();
    EXPECT_EQ(runs, done);
    EXPECT_EQ(done + cancelled, 4 * callsEach);
    EXPECT_GT(cancelled, 0);
}

} // namespace
} // namespace chronomender
