// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportRun.h"

#include "ItemMaking.h"
#include "Parallel.h"

#include <algorithm>
#include <chrono>
#include <span>

namespace chronomender {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// How many files are read ahead before the import thread decides about them. Blocks follow the
/// speed of the disk, so that progress and cancellation come in time on slow ones.
class BlockLength {
public:
    std::size_t value() const { return m_value; }
    void adaptTo(Clock::duration lastBlock) {
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
        if (done == m_total || Clock::now() - m_last >= 100ms)
            send(done);
    }

private:
    void send(std::size_t done) {
        m_last = Clock::now();
        if (m_report)
            m_report({done, m_total});
    }

    const std::function<void(ImportProgress)> &m_report;
    std::size_t m_total;
    Clock::time_point m_last;
};

/// One run over the entries of one folder.
class Run {
public:
    Run(MySingleFolder &folder, const FolderReference &reference, const ImportServices &services)
        : m_owner(folder.shared_from_this()),
          m_path(folder.sfFolderPath()),
          m_descriptor(reference.descriptor()),
          m_services(services),
          m_files(services.sessionFiles != nullptr ? *services.sessionFiles : m_ownFiles),
          m_answers(folder, services.questions, services.defaults),
          m_embedded(folder.isEXIFIgnored ? EmbeddedData::Ignored : EmbeddedData::Read),
          m_context{folder, services.zones,
                    services.defaults.integerForKey("dateComparisonThresold")} {}

    ImportOutcome over(std::vector<BatchEntry> entries) {
        ProgressReports progress(m_services.progress, entries.size());
        BlockLength block;
        std::size_t done = 0;
        while (done < entries.size() && !isCancelled()) {
            const auto begin = Clock::now();
            const std::size_t length = std::min(block.value(), entries.size() - done);
            done += importBlock(std::span(entries).subspan(done, length));
            block.adaptTo(Clock::now() - begin);
            progress.reached(done);
        }
        m_outcome.wasCancelled = done < entries.size();
        for (const BatchEntry &entry : std::span(entries).subspan(done))
            skip(entry, SkipReason::Cancelled);
        return std::move(m_outcome);
    }

private:
    /// A file that became an item, and what is still to be taken from it.
    struct MadeItem {
        MySinglePic *pic;
        FileRecord *record;
    };

    bool isCancelled() const { return m_services.cancellation.isRequested(); }

    /// Reads in parallel, decides one after the other, fills in parallel. The number of entries
    /// that are through, all of the block unless the run is cancelled.
    std::size_t importBlock(std::span<BatchEntry> entries) {
        std::vector<FileRecord> records(entries.size());
        const std::size_t read = parallelFor(
            entries.size(),
            [&](std::size_t i) {
                records[i] = readFileRecord(m_descriptor, entries[i], m_embedded);
            },
            [this] { return isCancelled(); });
        std::vector<MadeItem> made;
        made.reserve(read);
        for (std::size_t i = 0; i < read; ++i)
            if (MySinglePic *pic = decideAndMake(entries[i], records[i]))
                made.push_back({pic, &records[i]});
        parallelFor(made.size(), [&](std::size_t i) {
            fillItem(*made[i].pic, std::move(*made[i].record), m_context);
        });
        return read;
    }

    /// The new item of an entry; null when it is skipped.
    MySinglePic *decideAndMake(BatchEntry &entry, const FileRecord &record) {
        if (record.refusal)
            return skip(entry, *record.refusal);
        if (!m_files.insert(record.attributes))
            return skip(entry, SkipReason::SameFileTwice);
        const auto decision =
            decideDate(record, m_embedded, m_answers, m_context.zones.systemZone().rules);
        if (!decision) {
            m_files.erase(record.attributes);
            return skip(entry, SkipReason::NoDate);
        }
        m_outcome.fixedDates += decision->hasEmptyTags ? 1 : 0;
        m_outcome.items.push_back(makeItem(std::move(entry.name), m_owner, record, *decision));
        return m_outcome.items.back().get();
    }

    /// Lists an entry that became no item, unless nobody would look for it among the media.
    MySinglePic *skip(const BatchEntry &entry, SkipReason reason) {
        const bool isAlwaysListed = reason == SkipReason::SymbolicLink ||
                                    reason == SkipReason::NameNotUtf8 ||
                                    reason == SkipReason::NotYetSupported;
        const bool isListed = reason == SkipReason::NotAMedium
                                  ? entry.isNamed
                                  : isAlwaysListed || entry.isMissedByPerson();
        if (isListed)
            m_outcome.skipped.push_back({m_path + '/' + entry.name, reason});
        return nullptr;
    }

    MySingleFolderPtr m_owner;
    std::string m_path;
    int m_descriptor;
    const ImportServices &m_services;
    SessionFiles m_ownFiles;
    SessionFiles &m_files;
    EmptyTagAnswers m_answers;
    EmbeddedData m_embedded;
    FillContext m_context;
    ImportOutcome m_outcome;
};

} // namespace

ImportOutcome updatePicData(MySingleFolder &folder, std::vector<std::string> names,
                            const ImportServices &services) {
    const std::shared_ptr<FolderReference> reference = folder.reference();
    const bool isReached = reference && folder.unlockedSecUrl();
    auto entries = isReached ? takeBatch(folder, *reference, std::move(names)) : std::nullopt;
    if (!entries) {
        ImportOutcome outcome;
        outcome.skipped.push_back({folder.sfFolderPath(), SkipReason::Unreadable});
        return outcome;
    }
    return Run(folder, *reference, services).over(std::move(*entries));
}

} // namespace chronomender
