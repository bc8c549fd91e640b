// SPDX-License-Identifier: GPL-3.0-or-later
#include "BatchWriter.h"

#include "Parallel.h"

#include <algorithm>
#include <queue>

namespace chronomender {
namespace {

/// A batch keeps so many files open, and a cancelled run waits for so many.
constexpr std::size_t kUnitsOfBatch = 128;
/// The tool takes its time with each.
constexpr std::size_t kToolUnitsOfBatch = 16;

std::size_t batchLength(std::span<const WriteUnit> units) {
    std::size_t length = 0, withTool = 0;
    while (length < std::min(units.size(), kUnitsOfBatch) && withTool < kToolUnitsOfBatch)
        withTool += units[length++].needsTool() ? 1 : 0;
    return length;
}

} // namespace

BatchWriter::BatchWriter(const SaveServices &services, std::function<void(std::size_t)> finished)
    : m_services(services), m_finished(std::move(finished)) {}

std::size_t BatchWriter::run(std::span<WriteUnit> units) {
    std::size_t done = 0;
    while (done < units.size() && !m_services.cancellation.isRequested()) {
        const auto batch = units.subspan(done, batchLength(units.subspan(done)));
        runBatch(batch, done);
        done += batch.size();
    }
    return done;
}

void BatchWriter::runBatch(std::span<WriteUnit> batch, std::size_t first) {
    forAll(batch, &WriteUnit::prove);
    askForTool(batch);
    const std::vector<std::size_t> recorded = record(batch);
    parallelFor(batch.size(), [&](std::size_t i) {
        batch[i].write();
        if (!batch[i].needsTool())
            batch[i].finish();
    });
    runTool(batch);
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

void BatchWriter::askForTool(std::span<WriteUnit> batch) const {
    if (std::ranges::none_of(batch, &WriteUnit::needsTool) || m_services.tool.program())
        return;
    for (WriteUnit &unit : batch)
        if (unit.needsTool())
            unit.refuse(SaveErrorId::ToolMissing, {});
}

/// All are sent before the first answer is waited for: the tool sleeps when it has nothing to do.
void BatchWriter::runTool(std::span<WriteUnit> batch) const {
    std::queue<WriteUnit *> waiting;
    for (WriteUnit &unit : batch)
        if (unit.needsTool() && unit.sendTo(m_services.tool))
            waiting.push(&unit);
    while (!waiting.empty()) {
        WriteUnit &unit = *waiting.front();
        waiting.pop();
        unit.takeToolAnswer(m_services.tool.postAction());
        if (unit.sendTo(m_services.tool))
            waiting.push(&unit);
        else
            unit.finish();
    }
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
