// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"

#include <QTimer>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace chronomender {

/// Threads that make pictures. What waits can be taken back at any time and put in another order;
/// what is done is handed to the main thread in heaps, as a view draws them together anyway.
class PictureWorkers {
public:
    /// Runs on the main thread and takes the picture over.
    using Deliver = std::function<void()>;
    /// Runs on a worker, with copies of all that it needs; never reads an item.
    using Work = std::function<Deliver(const Cancellation &)>;
    struct Task {
        std::uint32_t sessionUniqueId;
        Work work;
    };
    /// In the background the threads stand back behind the window's own.
    enum class Urgency : std::uint8_t { Background, WaitedFor };

    /// `threads` 0: one for each processor. `delivered` follows each heap, on the main thread.
    PictureWorkers(int threads, Urgency urgency, std::function<void()> delivered);
    /// Waits for what is running, which is told to stop; nothing is delivered any more.
    ~PictureWorkers();
    PictureWorkers(const PictureWorkers &) = delete;
    PictureWorkers &operator=(const PictureWorkers &) = delete;

    /// The items whose tasks nobody began, in their order; nothing waits afterwards.
    std::vector<std::uint32_t> takeBack();
    /// Tasks to be begun in this order, behind those that wait.
    void add(std::vector<Task> tasks);
    std::size_t waiting() const;

private:
    struct Inbox;

    void run(Urgency urgency);
    void deliver();

    mutable std::mutex m_mutex;
    std::condition_variable m_hasWork;
    std::deque<Task> m_tasks;
    bool m_isEnding = false;
    Cancellation m_cancellation;
    std::shared_ptr<Inbox> m_inbox;
    std::function<void()> m_delivered;
    QTimer m_nextHeap;
    std::vector<std::thread> m_threads;
};

} // namespace chronomender
