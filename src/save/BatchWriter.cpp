// SPDX-License-Identifier: GPL-3.0-or-later
#include "BatchWriter.h"

#include "Parallel.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <queue>

namespace chronomender {
namespace {

/// A batch keeps all its files open; a program may have 1,024 on most systems.
constexpr std::size_t kFilesOfBatch = 480;
/// The tool takes its time with each.
constexpr std::size_t kToolUnitsOfBatch = 16;
/// Up to so many files are synced one by one: the rest of the file system may have much to write.
constexpr std::size_t kFilesSyncedAlone = 8;

/// How many of the units in front make a batch; at least one.
std::size_t batchLength(std::span<const WriteUnit> units) {
    std::size_t files = 0, length = 0, withTool = 0;
    while (length < units.size() && withTool < kToolUnitsOfBatch &&
           files + units[length].fileCount() <= kFilesOfBatch) {
        withTool += units[length].needsTool() ? 1 : 0;
        files += units[length++].fileCount();
    }
    return std::max<std::size_t>(length, 1);
}

/// False where a file system could not be synced as a whole.
bool syncFileSystems(std::span<WriteUnit> batch) {
    std::map<std::uint64_t, FileWrite *> files;
    for (WriteUnit &unit : batch)
        unit.addWrittenDevices(files);
    return std::all_of(files.begin(), files.end(),
                       [](const auto &each) { return each.second->syncFileSystem(); });
}

} // namespace

BatchWriter::BatchWriter(const SaveServices &services,
                         std::function<void(const WriteUnit &)> written)
    : m_services(services), m_written(std::move(written)) {}

std::size_t BatchWriter::run(std::span<WriteUnit> units) {
    std::size_t done = 0;
    while (done < units.size() && !isCancelled()) {
        const Batch left = units.subspan(done);
        done += runBatch(left.first(batchLength(left)));
    }
    return done;
}

std::size_t BatchWriter::runBatch(Batch batch) {
    const auto shouldStop = [this] { return isCancelled(); };
    const std::size_t proved = parallelFor(
        batch.size(), [&](std::size_t i) { batch[i].prove(); }, shouldStop);
    askForTool(batch.first(proved));
    const std::vector<std::size_t> recorded = record(batch.first(proved));
    const std::size_t written = parallelFor(
        proved,
        [&](std::size_t i) {
            batch[i].write();
            if (batch[i].needsTool())
                return;
            batch[i].finish();
            m_written(batch[i]);
        },
        shouldStop);
    runTool(batch.first(written));
    if (m_services.journal.durability() == RunJournal::Durability::Synced)
        sync(batch.first(written));
    settle(batch, recorded);
    for (WriteUnit &unit : batch)
        unit.close();
    return written;
}

void BatchWriter::askForTool(Batch batch) const {
    if (std::ranges::none_of(batch, &WriteUnit::needsTool) || m_services.tool.program())
        return;
    for (WriteUnit &unit : batch)
        if (unit.needsTool())
            unit.refuse(SaveErrorId::ToolMissing, {});
}

/// All are sent before the first answer is waited for: the tool sleeps when it has nothing to do.
void BatchWriter::runTool(Batch batch) const {
    std::queue<WriteUnit *> waiting;
    const auto sendOrFinish = [&](WriteUnit &unit) {
        if (unit.sendTo(m_services.tool))
            return waiting.push(&unit);
        unit.finish();
        m_written(unit);
    };
    for (WriteUnit &unit : batch)
        if (unit.needsTool())
            sendOrFinish(unit);
    while (!waiting.empty()) {
        WriteUnit &unit = *waiting.front();
        waiting.pop();
        unit.takeToolAnswer(m_services.tool.postAction());
        sendOrFinish(unit);
    }
}

/// Nothing may be written that could not be put right after a sudden end.
std::vector<std::size_t> BatchWriter::record(Batch batch) const {
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

/// Where a whole file system cannot be synced, each file tells whether it was its own.
void BatchWriter::sync(Batch batch) const {
    std::size_t files = 0;
    for (const WriteUnit &unit : batch)
        files += unit.hasWork() ? unit.fileCount() : 0;
    if (files > kFilesSyncedAlone && syncFileSystems(batch))
        return;
    parallelFor(batch.size(), [&](std::size_t i) { batch[i].sync(); });
}

void BatchWriter::settle(Batch batch, const std::vector<std::size_t> &recorded) const {
    if (recorded.empty())
        return;
    std::vector<std::size_t> unsettled;
    for (std::size_t i = 0; i < recorded.size(); ++i)
        if (batch[recorded[i]].isLeftHalfWritten())
            unsettled.push_back(i);
    m_services.journal.settle(unsettled);
}

} // namespace chronomender
