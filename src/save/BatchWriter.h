// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveDriver.h"
#include "WriteUnit.h"

#include <functional>
#include <span>

namespace chronomender {

/// Carries out units, some at a time, so that their syncs and the work of the processors come
/// together: all of a batch are proved and recorded in the journal, then written and dated, then
/// synced. On the run's worker thread.
class BatchWriter {
public:
    /// `finished` is told the index of each unit that is done, in order.
    BatchWriter(const SaveServices &services, std::function<void(std::size_t)> finished);

    /// The number of units that were dealt with: those in front, fewer than all when cancelled.
    /// Nothing was written to the files of the rest.
    std::size_t run(std::span<WriteUnit> units);

private:
    void runBatch(std::span<WriteUnit> batch, std::size_t first);
    static void forAll(std::span<WriteUnit> batch, void (WriteUnit::*step)());
    /// Fails what needs the tool where there is none.
    void askForTool(std::span<WriteUnit> batch) const;
    void runTool(std::span<WriteUnit> batch) const;
    std::vector<std::size_t> record(std::span<WriteUnit> batch) const;
    void settle(std::span<WriteUnit> batch, const std::vector<std::size_t> &recorded) const;

    const SaveServices &m_services;
    std::function<void(std::size_t)> m_finished;
};

} // namespace chronomender
