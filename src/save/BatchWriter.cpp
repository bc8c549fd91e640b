// SPDX-License-Identifier: GPL-3.0-or-later
#include "BatchWriter.h"

#include "Parallel.h"

#include <algorithm>

namespace chronomender {
namespace {

/// A batch keeps so many files open, and a cancelled run waits for so many.
constexpr std::size_t kUnitsOfBatch = 128;

} // namespace

BatchWriter::BatchWriter(const SaveServices &services, std::function<void(std::size_t)> finished)
    : m_services(services), m_finished(std::move(finished)) {}

std::size_t BatchWriter::run(std::span<WriteUnit> units) {
    std::size_t done = 0;
    while (done < units.size() && !m_services.cancellation.isRequested()) {
        const auto batch = units.subspan(done, std::min(kUnitsOfBatch, units.size() - done));
        runBatch(batch, done);
        done += batch.size();
    }
    return done;
}

void BatchWriter::runBatch(std::span<WriteUnit> batch, std::size_t first) {
    forAll(batch, &WriteUnit::prove);
    const std::vector<std::size_t> recorded = record(batch);
    parallelFor(batch.size(), [&](std::size_t i) {
        batch[i].write();
        batch[i].finish();
    });
    if (m_services.journal.durability() == RunJournal::Durability::Synced)
        forAll(batch, &WriteUnit::sync);
    settle(batch, recorded);
    for (std::size_t i = 0; i < batch.size(); ++i) {
        batch[i].close();
        m_finished(first + i);
    }
}

void BatchWriter::forAll(std::span<WriteUnit> batch, void (WriteUnit::*step)()) {
    parallelFor(batch.size(), [&](std::size_t i) { (batch[i].*step)(); });
}

/// Nothing may be written that could not be put right after a sudden end.
std::vector<std::size_t> BatchWriter::record(std::span<WriteUnit> batch) const {
    std::vector<std::size_t> recorded;
    std::vector<UnitIntent> intents;
    intents.reserve(batch.size());
    recorded.reserve(batch.size());
    for (std::size_t i = 0; i < batch.size(); ++i)
        if (batch[i].hasWork() && !batch[i].hasFailed()) {
            intents.push_back(batch[i].intent());
            recorded.push_back(i);
        }
    FileError error;
    if (recorded.empty() || m_services.journal.begin(intents, &error))
        return recorded;
    for (const std::size_t i : recorded)
        batch[i].refuse(SaveErrorId::IntentNotKept, error.text());
    return {};
}

void BatchWriter::settle(std::span<WriteUnit> batch,
                         const std::vector<std::size_t> &recorded) const {
    if (recorded.empty())
        return;
    std::vector<std::size_t> unsettled;
    for (std::size_t i = 0; i < recorded.size(); ++i)
        if (batch[recorded[i]].isLeftHalfWritten())
            unsettled.push_back(i);
    m_services.journal.settle(unsettled);
}

} // namespace chronomender
