// SPDX-License-Identifier: GPL-3.0-or-later
#include "Parallel.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace chronomender {
namespace {

/// One call of parallelFor. Blocks are taken by whoever comes; a block that was taken is finished,
/// and so what ran is a prefix of the range.
class Job {
public:
    Job(std::size_t count, std::size_t block, const std::function<void(std::size_t)> &work,
        const std::function<bool()> &shouldStop)
        : m_count(count), m_block(block), m_work(work), m_shouldStop(shouldStop) {}

    void runBlocks() {
        while (const auto end = takeBlock())
            for (std::size_t index = (end - 1) / m_block * m_block; index < end; ++index)
                m_work(index);
    }

    /// Called by a helper before it looks at the job's work; false once the caller went on.
    bool join() {
        const std::lock_guard lock(m_mutex);
        m_helpers += m_isOver ? 0 : 1;
        return !m_isOver;
    }
    void leave() {
        const std::lock_guard lock(m_mutex);
        if (--m_helpers == 0)
            m_allLeft.notify_all();
    }
    /// Waits for the helpers and closes the door behind them.
    std::size_t finish() {
        std::unique_lock lock(m_mutex);
        m_isOver = true;
        m_allLeft.wait(lock, [this] { return m_helpers == 0; });
        return m_taken;
    }

private:
    /// The end of the block taken, or 0 when there is nothing left to take.
    std::size_t takeBlock() {
        const std::lock_guard lock(m_takeMutex);
        m_isStopped = m_isStopped || (m_shouldStop && m_shouldStop());
        if (m_isStopped || m_taken == m_count)
            return 0;
        m_taken = std::min(m_taken + m_block, m_count);
        return m_taken;
    }

    const std::size_t m_count;
    const std::size_t m_block;
    const std::function<void(std::size_t)> &m_work;
    const std::function<bool()> &m_shouldStop;
    std::mutex m_takeMutex;
    std::size_t m_taken = 0;
    bool m_isStopped = false;
    std::mutex m_mutex;
    std::condition_variable m_allLeft;
    int m_helpers = 0;
    bool m_isOver = false;
};

/// The helper threads of the process, made at the first use and kept.
class Helpers {
public:
    static Helpers &shared() {
        static Helpers helpers;
        return helpers;
    }

    std::size_t count() const { return m_threads.size(); }

    void offer(const std::shared_ptr<Job> &job, std::size_t helpers) {
        {
            const std::lock_guard lock(m_mutex);
            m_offers.insert(m_offers.end(), helpers, job);
        }
        m_offered.notify_all();
    }
    void withdraw(const std::shared_ptr<Job> &job) {
        const std::lock_guard lock(m_mutex);
        std::erase(m_offers, job);
    }

private:
    Helpers() {
        const unsigned processors = std::thread::hardware_concurrency();
        for (unsigned i = 1; i < processors; ++i)
            m_threads.emplace_back([this] { serve(); });
    }
    ~Helpers() {
        {
            const std::lock_guard lock(m_mutex);
            m_isEnding = true;
        }
        m_offered.notify_all();
        for (std::thread &thread : m_threads)
            thread.join();
    }

    void serve() {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_offered.wait(lock, [this] { return m_isEnding || !m_offers.empty(); });
            if (m_isEnding)
                return;
            const auto job = std::move(m_offers.front());
            m_offers.pop_front();
            lock.unlock();
            if (job->join()) {
                job->runBlocks();
                job->leave();
            }
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_offered;
    std::deque<std::shared_ptr<Job>> m_offers;
    bool m_isEnding = false;
    std::vector<std::thread> m_threads;
};

} // namespace

std::size_t parallelFor(std::size_t count, const std::function<void(std::size_t)> &work,
                        const std::function<bool()> &shouldStop) {
    constexpr std::size_t largestBlock = 16;
    constexpr std::size_t blocksPerThread = 4; ///< so that threads end at about the same time
    Helpers &helpers = Helpers::shared();
    const std::size_t threads = helpers.count() + 1;
    const std::size_t block =
        std::clamp<std::size_t>(count / (threads * blocksPerThread), 1, largestBlock);
    const auto job = std::make_shared<Job>(count, block, work, shouldStop);
    const std::size_t blocks = (count + block - 1) / block;
    const std::size_t offered = std::min(helpers.count(), blocks > 0 ? blocks - 1 : 0);
    if (offered > 0)
        helpers.offer(job, offered);
    job->runBlocks();
    if (offered > 0)
        helpers.withdraw(job);
    return job->finish();
}

} // namespace chronomender
