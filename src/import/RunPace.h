// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportRun.h"

#include <algorithm>
#include <chrono>

namespace chronomender {

using RunClock = std::chrono::steady_clock;

/// How many files are read ahead before the import thread decides about them. Blocks follow the
/// speed of the disk, so that progress and cancellation come in time on slow ones.
class BlockLength {
public:
    std::size_t value() const { return m_value; }
    void adaptTo(RunClock::duration lastBlock) {
        using namespace std::chrono_literals;
        if (lastBlock < 20ms)
            m_value = std::min(m_value * 2, longest);
        else if (lastBlock > 80ms)
            m_value = std::max(m_value / 2, shortest);
    }

private:
    static constexpr std::size_t shortest = 8, longest = 1024;
    std::size_t m_value = 64;
};

/// Passes on the first and the last step, and in between one in a tenth of a second.
class ProgressReports {
public:
    ProgressReports(const std::function<void(ImportProgress)> &report, std::size_t total)
        : m_report(report), m_total(total) {
        send(0);
    }
    void reached(std::size_t done) {
        using namespace std::chrono_literals;
        if (done == m_total || RunClock::now() - m_last >= 100ms)
            send(done);
    }

private:
    void send(std::size_t done) {
        m_last = RunClock::now();
        if (m_report)
            m_report({done, m_total});
    }

    const std::function<void(ImportProgress)> &m_report;
    std::size_t m_total;
    RunClock::time_point m_last;
};

} // namespace chronomender
