// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MainThread.h"

#include <QThreadPool>

#include <memory>
#include <utility>

namespace chronomender {

/// One worker, which takes its work one piece after the other. Everything but the work itself
/// belongs to the main thread.
class WorkThread {
public:
    WorkThread() { m_pool.setMaxThreadCount(1); }
    ~WorkThread() { waitForDone(); }
    WorkThread(const WorkThread &) = delete;
    WorkThread &operator=(const WorkThread &) = delete;

    /// Runs `work` here, then `finished` with its result on the main thread, from the event loop,
    /// unless this object is gone by then.
    template<class Work, class Finished>
    void run(Work work, Finished finished) {
        std::weak_ptr<const bool> alive = m_alive;
        ++m_unfinished;
        m_pool.start([this, work = std::move(work), finished = std::move(finished), alive] {
            auto result = std::make_shared<decltype(work())>(work());
            mainThread::post([this, finished = finished, result, alive]() mutable {
                if (!alive.lock())
                    return;
                --m_unfinished;
                finished(std::move(*result));
            });
        });
    }
    /// Work was given whose `finished` has not begun.
    bool isBusy() const { return m_unfinished > 0; }
    void waitForDone() { m_pool.waitForDone(); }

private:
    QThreadPool m_pool;
    int m_unfinished = 0; ///< of the main thread, as the rest
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true);
};

} // namespace chronomender
