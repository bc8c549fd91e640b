// SPDX-License-Identifier: GPL-3.0-or-later
#include "Jobs.h"

#include <absl/time/clock.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>

namespace chronomender {
namespace {

constexpr int ticksMilliseconds = 100;
constexpr absl::Duration tooEarly = absl::Milliseconds(500);

} // namespace

Pace paceOf(std::size_t done, std::size_t total, absl::Duration elapsed) {
    if (elapsed < tooEarly || done == 0)
        return {};
    Pace pace;
    pace.perSecond = static_cast<double>(done) / absl::ToDoubleSeconds(elapsed);
    if (total >= done)
        pace.remaining = absl::Seconds(static_cast<double>(total - done) / *pace.perSecond);
    return pace;
}

struct Jobs::Entry : Job {
    JobKind kind{};
    std::function<void()> cancel;
    absl::Time start;
    bool isCancelling = false;

    void report(std::size_t newDone, std::size_t newTotal) override {
        const std::scoped_lock lock(mutex);
        done = newDone;
        total = newTotal;
    }
    void setTitle(std::string newTitle) override {
        const std::scoped_lock lock(mutex);
        title = std::move(newTitle);
    }

    mutable std::mutex mutex;
    std::string title;
    std::size_t done = 0, total = 0;
};

Jobs::Jobs(QObject *parent) : QObject(parent) {
    m_timer.setInterval(ticksMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
}

Jobs::~Jobs() = default;

std::shared_ptr<Job> Jobs::begin(JobKind kind, std::string title, std::function<void()> cancel) {
    auto entry = std::make_shared<Entry>();
    entry->kind = kind;
    entry->title = std::move(title);
    entry->cancel = std::move(cancel);
    entry->start = absl::Now();
    m_entries.push_back(entry);
    m_timer.start();
    Q_EMIT changed();
    return entry;
}

std::vector<JobStatus> Jobs::statuses() const {
    std::vector<JobStatus> statuses;
    for (const auto &weak : m_entries) {
        const auto entry = weak.lock();
        if (!entry)
            continue;
        const std::scoped_lock lock(entry->mutex);
        const Pace pace = paceOf(entry->done, entry->total, absl::Now() - entry->start);
        statuses.push_back({entry->kind, entry->title, entry->done, entry->total, pace.perSecond,
                            pace.remaining, static_cast<bool>(entry->cancel), entry->isCancelling});
    }
    return statuses;
}

bool Jobs::isRunning(JobKind kind) const {
    return std::ranges::any_of(m_entries, [kind](const auto &weak) {
        const auto entry = weak.lock();
        return entry && entry->kind == kind;
    });
}

bool Jobs::isAnyRunning() const {
    return std::ranges::any_of(m_entries, [](const auto &weak) { return !weak.expired(); });
}

void Jobs::cancel(JobKind kind) {
    for (const auto &weak : std::vector(m_entries)) {
        const auto entry = weak.lock();
        if (entry && entry->kind == kind && entry->cancel && !entry->isCancelling) {
            entry->isCancelling = true;
            entry->cancel();
        }
    }
    Q_EMIT changed();
}

void Jobs::cancelAll() {
    for (const JobKind kind : {JobKind::Import, JobKind::Check, JobKind::Write,
                               JobKind::RenamePreview, JobKind::Thumbnails})
        cancel(kind);
}

void Jobs::tick() {
    std::erase_if(m_entries, [](const auto &weak) { return weak.expired(); });
    if (m_entries.empty())
        m_timer.stop();
    Q_EMIT changed();
}

} // namespace chronomender
