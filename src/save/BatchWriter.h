// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveDriver.h"
#include "WriteUnit.h"

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace chronomender {

/// Carries out units, many at a time, so that their syncs and the work of the processors come
/// together: all of a batch are proved and recorded in the journal, then written and dated, then
/// synced. On the run's worker thread.
class BatchWriter {
public:
    /// `written` is told each unit that is written or has failed, on any worker thread.
    BatchWriter(const SaveServices &services, std::function<void(const WriteUnit &)> written);

    /// The number of units that were dealt with: those in front, fewer than all when cancelled.
    /// Nothing was written to the files of the rest.
    std::size_t run(std::span<WriteUnit> units);

private:
    using Batch = std::span<WriteUnit>;

    std::size_t runBatch(Batch batch);
    bool isCancelled() const { return m_services.cancellation.isRequested(); }
    /// Fails what needs the tool where there is none.
    void askForTool(Batch batch) const;
    void runTool(Batch batch) const;
    /// The places of the recorded units in the batch.
    std::vector<std::size_t> record(Batch batch) const;
    void sync(Batch batch) const;
    void settle(Batch batch, const std::vector<std::size_t> &recorded) const;

    const SaveServices &m_services;
    std::function<void(const WriteUnit &)> m_written;
};

} // namespace chronomender
