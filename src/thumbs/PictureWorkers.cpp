// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureWorkers.h"

#include "MainThread.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <sys/resource.h>

namespace chronomender {

namespace {

constexpr int kBackgroundNiceness = 2;
constexpr std::chrono::milliseconds kBetweenHeaps{12};

} // namespace

/// Where finished pictures wait for the main thread. It outlives the workers as long as an event on
/// its way holds on to it.
struct PictureWorkers::Inbox {
    std::mutex mutex;
    std::vector<Deliver> finished;
    bool isOnItsWay = false;
    PictureWorkers *owner = nullptr; // main thread only
};

PictureWorkers::PictureWorkers(int threads, Urgency urgency, std::function<void()> delivered)
    : m_inbox(std::make_shared<Inbox>()), m_delivered(std::move(delivered)) {
    m_inbox->owner = this;
    m_nextHeap.setSingleShot(true);
    m_nextHeap.setTimerType(Qt::PreciseTimer);
    m_nextHeap.setInterval(kBetweenHeaps);
    QObject::connect(&m_nextHeap, &QTimer::timeout, &m_nextHeap, [this] { deliver(); });
    const auto processors = static_cast<int>(std::thread::hardware_concurrency());
    for (int i = std::max(threads > 0 ? threads : processors, 1); i > 0; --i)
        m_threads.emplace_back([this, urgency] { run(urgency); });
}

PictureWorkers::~PictureWorkers() {
    m_inbox->owner = nullptr;
    m_cancellation.request();
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_tasks.clear();
    }
    m_hasWork.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

std::vector<std::uint32_t> PictureWorkers::takeBack() {
    std::deque<Task> tasks;
    {
        const std::lock_guard lock(m_mutex);
        tasks.swap(m_tasks);
    }
    std::vector<std::uint32_t> ids;
    ids.reserve(tasks.size());
    for (const Task &task : tasks)
        ids.push_back(task.sessionUniqueId);
    return ids;
}

void PictureWorkers::add(std::vector<Task> tasks) {
    {
        const std::lock_guard lock(m_mutex);
        std::ranges::move(tasks, std::back_inserter(m_tasks));
    }
    m_hasWork.notify_all();
}

std::size_t PictureWorkers::waiting() const {
    const std::lock_guard lock(m_mutex);
    return m_tasks.size();
}

void PictureWorkers::run(Urgency urgency) {
    if (urgency == Urgency::Background)
        ::setpriority(PRIO_PROCESS, 0, kBackgroundNiceness); // of this thread alone
    std::unique_lock lock(m_mutex);
    while (true) {
        m_hasWork.wait(lock, [this] { return m_isEnding || !m_tasks.empty(); });
        if (m_isEnding)
            return;
        Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        lock.unlock();
        Deliver done = task.work(m_cancellation);
        {
            const std::lock_guard inboxLock(m_inbox->mutex);
            m_inbox->finished.push_back(std::move(done));
            if (!std::exchange(m_inbox->isOnItsWay, true))
                mainThread::post([inbox = m_inbox] {
                    if (inbox->owner && !inbox->owner->m_nextHeap.isActive())
                        inbox->owner->deliver();
                });
        }
        lock.lock();
    }
}

void PictureWorkers::deliver() {
    std::vector<Deliver> heap;
    {
        const std::lock_guard lock(m_inbox->mutex);
        heap.swap(m_inbox->finished);
        m_inbox->isOnItsWay = false;
    }
    if (heap.empty())
        return;
    m_nextHeap.start(); // what comes until then waits for it
    for (const Deliver &take : heap)
        take();
    m_delivered();
}

} // namespace chronomender
