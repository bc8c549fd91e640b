// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <mutex>
#include <string>

namespace chronomender {

/// One line of progress with rate and remaining time on standard error, redrawn some ten times a
/// second and removed at the end; nothing at all unless standard error is a terminal.
class ProgressBar {
public:
    explicit ProgressBar(std::string label);
    ~ProgressBar();
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;

    /// Another piece of work begins. Any thread.
    void begin(std::string label);
    /// Any thread.
    void update(std::size_t done, std::size_t total);

private:
    using Clock = std::chrono::steady_clock;
    std::string m_label;
    const bool m_isTerminal;
    Clock::time_point m_start = Clock::now();
    std::mutex m_mutex;
    Clock::time_point m_lastDrawing;
    bool m_isDrawn = false;
};

/// "label [####----] 40/100  80/s  0:01", for `elapsed` seconds of work so far.
std::string progressLine(const std::string &label, std::size_t done, std::size_t total,
                         double elapsed);

} // namespace chronomender
