// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportRun.h"

#include "ItemMaking.h"
#include "MovieDecision.h"
#include "Parallel.h"
#include "RunPace.h"
#include "Sidecars.h"

#include <algorithm>
#include <set>
#include <span>

namespace chronomender {

namespace {

/// The zone in which stamps without one are meant.
const absl::TimeZone &sourceZoneOf(const MySingleFolder &folder, const Zones &zones) {
    const auto &choice = folder.sourceTimeZones.folderDefault;
    return choice && choice->zone() ? choice->zone()->rules : zones.systemZone().rules;
}

/// One run over the entries of one folder.
class Run {
public:
    Run(MySingleFolder &folder, const FolderReference &reference, KeyStates keyStates,
        const ImportServices &services)
        : m_owner(folder.shared_from_this()),
          m_path(folder.sfFolderPath()),
          m_descriptor(reference.descriptor()),
          m_keyStates(std::move(keyStates)),
          m_services(services),
          m_files(services.sessionFiles != nullptr ? *services.sessionFiles : m_ownFiles),
          m_emptyTags(folder, services.questions, services.defaults),
          m_movies(folder, services.questions, services.defaults),
          m_embedded(folder.isEXIFIgnored ? EmbeddedData::Ignored : EmbeddedData::Read),
          m_movieContext{m_embedded, sourceZoneOf(folder, services.zones), m_emptyTags, m_movies},
          m_context{folder, services.zones,
                    services.defaults.integerForKey("dateComparisonThresold")} {}

    ImportOutcome over(FolderBatch batch) {
        importEntries(batch.entries);
        std::vector<SidecarMatch> sidecars;
        onMainThread([&] {
            m_owner->fixedDates += m_outcome.fixedDates;
            groupItems();
            sidecars = matchSidecars(std::move(batch.sidecars), *m_owner, m_outcome.items);
        });
        finishLateMovies();
        assignSidecars(std::move(sidecars));
        for (const std::string &name : batch.subfolders)
            if (areSubfoldersImported())
                m_outcome.subfolders.push_back(m_path + '/' + name);
        return std::move(m_outcome);
    }

private:
    /// A file that became an item, and what is still to be taken from it.
    struct MadeItem {
        MySinglePic *pic;
        FileRecord *record;
    };
    /// A movie whose date waits for the grouping.
    struct LateMovie {
        MySinglePicPtr pic;
        FileRecord qTMovieLateReadingInfo;
    };

    bool isCancelled() const { return m_services.cancellation.isRequested(); }

    void onMainThread(const std::function<void()> &work) const {
        if (m_services.onMainThread)
            m_services.onMainThread(work);
        else
            work();
    }

    void importEntries(std::span<BatchEntry> entries) {
        ProgressReports progress(m_services.progress, entries.size());
        BlockLength block;
        std::size_t done = 0;
        while (done < entries.size() && !isCancelled()) {
            const auto begin = RunClock::now();
            const std::size_t length = std::min(block.value(), entries.size() - done);
            done += importBlock(entries.subspan(done, length));
            block.adaptTo(RunClock::now() - begin);
            progress.reached(done);
        }
        m_outcome.wasCancelled = done < entries.size();
        for (const BatchEntry &entry : entries.subspan(done))
            skip(entry, SkipReason::Cancelled);
    }

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
        const auto forNow = decideForTheTimeBeing(record, m_movieContext.sourceZone);
        const auto decision = forNow ? forNow : decide(record);
        if (!decision) {
            m_files.erase(record.attributes);
            return skip(entry, SkipReason::NoDate);
        }
        m_outcome.fixedDates += decision->hasEmptyTags ? 1 : 0;
        const auto pic = makeItem(std::move(entry.name), m_owner, record, *decision);
        m_outcome.items.push_back(pic);
        if (forNow)
            m_lateMovies.push_back({pic, record});
        return pic.get();
    }

    std::optional<DateDecision> decide(const FileRecord &record) {
        return isMovieFormat(record.format) ? decideMovieDate(record, m_movieContext)
                                            : decideDate(record, m_embedded, m_emptyTags,
                                                         m_context.zones.systemZone().rules);
    }

    /// Raw files find their JPEG, stills their movie.
    void groupItems() {
        const bool isWanted = m_keyStates.createFileGroups.value_or(
            m_services.defaults.boolForKey("createFileGroups"));
        const auto isCandidate = [](const MySinglePicPtr &pic) {
            return pic->importState.isPossibleBundlePic;
        };
        if (!isWanted || (std::ranges::none_of(m_outcome.items, isCandidate) &&
                          std::ranges::none_of(m_owner->sfPicDetails_fullArray, isCandidate)))
            return;
        std::set<std::string> names;
        for (const MySinglePicPtr &pic : m_outcome.items)
            names.insert(pic->spName);
        GroupingResult groups = checkForPossibleBundles(*m_owner, m_outcome.items, names,
                                                        {m_services.zones, m_services.defaults});
        const std::set<MySinglePicPtr> dependents(groups.newDependents.begin(),
                                                  groups.newDependents.end());
        std::erase_if(m_outcome.items, [&](const auto &pic) { return dependents.contains(pic); });
        m_outcome.merged = std::move(groups.merged);
    }

    /// Movies that turned out to be no half of a live photo.
    void finishLateMovies() {
        for (LateMovie &movie : m_lateMovies)
            if (!movie.pic->bundleMasterImage())
                updateQTMovieImport(movie);
        m_lateMovies.clear();
    }

    void updateQTMovieImport(LateMovie &movie) {
        const auto decision = decideMovieDate(movie.qTMovieLateReadingInfo, m_movieContext);
        if (!decision)
            return;
        movie.pic->spType = decision->type;
        movie.pic->spDateTimeOriginal = decision->date;
        fillItem(*movie.pic, std::move(movie.qTMovieLateReadingInfo), m_context);
    }

    void assignSidecars(std::vector<SidecarMatch> sidecars) {
        if (sidecars.empty())
            return;
        readSidecars(sidecars, m_path, m_services.cancellation);
        if (m_outcome.wasCancelled) // their items may be among those that were not reached
            for (SidecarMatch &match : sidecars)
                match.file.isFoundAutomatically = true;
        onMainThread([&] { m_outcome.importErrors = giveSidecars(std::move(sidecars), m_path); });
    }

    bool areSubfoldersImported() const {
        const bool isWanted = m_keyStates.isSubFolderAutoImportEnabled.value_or(
            m_services.defaults.boolForKey("isSubFolderAutoImportEnabled"));
        const int deepest = m_keyStates.subFolderAutoImportMaxDepth.value_or(
            m_services.defaults.integerForKey("subFolderAutoImportMaxDepth"));
        return isWanted && m_owner->importDepth < deepest && !m_outcome.wasCancelled;
    }

    /// Lists an entry that became no item, unless nobody would look for it among the media.
    MySinglePic *skip(const BatchEntry &entry, SkipReason reason) {
        const bool isAlwaysListed =
            reason == SkipReason::SymbolicLink || reason == SkipReason::NameNotUtf8;
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
    KeyStates m_keyStates;
    const ImportServices &m_services;
    SessionFiles m_ownFiles;
    SessionFiles &m_files;
    EmptyTagAnswers m_emptyTags;
    MovieAnswers m_movies;
    EmbeddedData m_embedded;
    MovieContext m_movieContext;
    FillContext m_context;
    std::vector<LateMovie> m_lateMovies;
    ImportOutcome m_outcome;
};

} // namespace

ImportOutcome updatePicData(MySingleFolder &folder, ImportBatch batch,
                            const ImportServices &services) {
    const std::shared_ptr<FolderReference> reference = folder.reference();
    const bool isReached = reference && folder.unlockedSecUrl();
    KeyStates keyStates = batch.keyStates;
    auto taken = isReached ? takeBatch(folder, *reference, std::move(batch)) : std::nullopt;
    if (!taken) {
        ImportOutcome outcome;
        outcome.skipped.push_back({folder.sfFolderPath(), SkipReason::Unreadable});
        return outcome;
    }
    return Run(folder, *reference, std::move(keyStates), services).over(std::move(*taken));
}

} // namespace chronomender
