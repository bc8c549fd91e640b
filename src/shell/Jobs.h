// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

enum class JobKind : std::uint8_t { Import, Check, Write, RenamePreview, Thumbnails };

/// What a window shows of one long work.
struct JobStatus {
    JobKind kind{};
    std::string title;               ///< in the user's words: "Reading canon"
    std::size_t done = 0, total = 0; ///< total 0: not known yet
    std::optional<double> perSecond; ///< items; none before it can be told
    std::optional<absl::Duration> remaining;
    bool canBeCancelled = false;
    bool isCancelling = false;
};

/// What is known of a job's speed: from `start` on, `done` of `total` after `elapsed`. The rate and
/// the time that remains; nothing within the first half second.
struct Pace {
    std::optional<double> perSecond;
    std::optional<absl::Duration> remaining;
};
Pace paceOf(std::size_t done, std::size_t total, absl::Duration elapsed);

/// A job under way; it ends with the last copy of its pointer. `report` and `setTitle` are for any
/// thread, the rest for the main thread.
class Job {
public:
    virtual ~Job() = default;
    virtual void report(std::size_t done, std::size_t total) = 0;
    virtual void setTitle(std::string title) = 0;
};

/// The long works of a window. Main thread; told of progress at most ten times a second.
class Jobs : public QObject {
    Q_OBJECT
public:
    explicit Jobs(QObject *parent = nullptr);
    ~Jobs() override;

    /// `cancel` may be empty: the job cannot be stopped. It is called once.
    std::shared_ptr<Job> begin(JobKind kind, std::string title, std::function<void()> cancel);
    std::vector<JobStatus> statuses() const;
    bool isRunning(JobKind kind) const;
    bool isAnyRunning() const;
    /// Asks the jobs of a kind, or all, to stop; they end when they have.
    void cancel(JobKind kind);
    void cancelAll();

Q_SIGNALS:
    void changed();

private:
    struct Entry;
    void tick();

    std::vector<std::weak_ptr<Entry>> m_entries;
    QTimer m_timer;
};

} // namespace chronomender
