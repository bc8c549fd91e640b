// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <utility>

namespace chronomender {

/// Work that many signals ask for and that is done once for all of them, a moment later. Main
/// thread, with an event loop.
class Coalesced {
public:
    Coalesced(std::chrono::milliseconds delay, std::function<void()> work)
        : m_work(std::move(work)) {
        m_timer.setSingleShot(true);
        m_timer.setInterval(delay);
        m_timer.callOnTimeout([this] { m_work(); });
    }

    /// The work is done one delay after the first request that waits.
    void request() {
        if (!m_timer.isActive())
            m_timer.start();
    }
    /// The work is done one delay after the last request.
    void postpone() { m_timer.start(); }
    void cancel() { m_timer.stop(); }
    bool isWaiting() const { return m_timer.isActive(); }
    void doNow() {
        m_timer.stop();
        m_work();
    }

private:
    QTimer m_timer;
    std::function<void()> m_work;
};

} // namespace chronomender
