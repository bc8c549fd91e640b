// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

namespace chronomender {

/// A request to stop, set on any thread (also in a signal handler) and asked for between two items.
class Cancellation {
public:
    void request() { m_requested.store(true, std::memory_order_relaxed); }
    void clear() { m_requested.store(false, std::memory_order_relaxed); }
    bool isRequested() const { return m_requested.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> m_requested{false};
    static_assert(std::atomic<bool>::is_always_lock_free);
};

} // namespace chronomender
