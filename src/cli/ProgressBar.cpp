// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressBar.h"

#include "Output.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace chronomender {
namespace {

constexpr std::size_t barWidth = 24;
constexpr std::chrono::milliseconds redrawInterval{100};
constexpr const char *clearLine = "\r\x1B[K";

std::string remainingText(double seconds) {
    const long long whole = std::llround(seconds);
    char buffer[48];
    if (whole >= 3600)
        std::snprintf(buffer, sizeof buffer, "%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60,
                      whole % 60);
    else
        std::snprintf(buffer, sizeof buffer, "%lld:%02lld", whole / 60, whole % 60);
    return buffer;
}

} // namespace

std::string progressLine(const std::string &label, std::size_t done, std::size_t total,
                         double elapsed) {
    const std::size_t filled = total ? std::min(barWidth, done * barWidth / total) : 0;
    std::string line = label + " [" + std::string(filled, '#') +
                       std::string(barWidth - filled, '-') + "] " + std::to_string(done) + '/' +
                       std::to_string(total);
    if (done == 0 || elapsed <= 0)
        return line;
    const double rate = static_cast<double>(done) / elapsed;
    const double left = static_cast<double>(total > done ? total - done : 0) / rate;
    return line + "  " + std::to_string(static_cast<long long>(rate)) + "/s  " +
           remainingText(left);
}

ProgressBar::ProgressBar(std::string label)
    : m_label(std::move(label)), m_isTerminal(::isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar() {
    if (m_isDrawn)
        writeError(clearLine);
}

void ProgressBar::begin(std::string label) {
    const std::lock_guard lock(m_mutex);
    m_label = std::move(label);
    m_start = Clock::now();
}

void ProgressBar::update(std::size_t done, std::size_t total) {
    if (!m_isTerminal)
        return;
    const std::lock_guard lock(m_mutex);
    const Clock::time_point now = Clock::now();
    if (m_isDrawn && now - m_lastDrawing < redrawInterval)
        return;
    m_lastDrawing = now;
    m_isDrawn = true;
    const std::chrono::duration<double> elapsed = now - m_start;
    writeError(clearLine + progressLine(m_label, done, total, elapsed.count()));
}

} // namespace chronomender
