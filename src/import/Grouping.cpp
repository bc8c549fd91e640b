// SPDX-License-Identifier: GPL-3.0-or-later
#include "Grouping.h"

#include "DateDifferences.h"
#include "GroupingPairs.h"
#include "GroupingTransfer.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <tuple>
#include <unordered_set>

namespace chronomender {
namespace {

/// An item with its sort keys. Candidates come first among the items of one base name, raw files
/// before movies, so that what becomes a group does not depend on the order of import.
struct Entry {
    std::string baseName;
    bool isCandidate = false;
    MySinglePicPtr pic;

    auto key() const {
        return std::tuple(std::string_view(baseName), !isCandidate, pic->isMovie());
    }
};

bool hasGroup(const MySinglePic &pic) {
    return pic.group.bundleDependentImage || pic.bundleMasterImage();
}

class GroupSearch {
public:
    GroupSearch(MySingleFolder &folder, const std::set<std::string> &namesOfRun,
                const GroupingContext &context)
        : m_folder(folder),
          m_namesOfRun(namesOfRun),
          m_key(context.occasion == GroupingOccasion::Move ? &ImportState::isPossibleBundlePicTemp
                                                           : &ImportState::isPossibleBundlePic),
          m_context(context),
          m_dateComparisonThresold(context.defaults.integerForKey("dateComparisonThresold")) {}

    /// `items` are all items that may become part of a group.
    std::vector<MergedGroup> among(const std::vector<MySinglePicPtr> &items) {
        if (std::none_of(items.begin(), items.end(),
                         [this](const MySinglePicPtr &pic) { return isCandidate(*pic); }))
            return {};
        const std::vector<Entry> entries = sorted(items);
        for (auto begin = entries.begin(); begin != entries.end();) {
            const auto end = std::find_if(begin, entries.end(), [&](const Entry &entry) {
                return entry.baseName != begin->baseName;
            });
            for (auto candidate = begin; candidate != end && candidate->isCandidate; ++candidate)
                groupFirstMatch(candidate->pic, {std::next(candidate), end});
            begin = end;
        }
        return std::move(m_merged);
    }

private:
    bool isCandidate(const MySinglePic &pic) const { return pic.importState.*m_key; }

    std::vector<Entry> sorted(const std::vector<MySinglePicPtr> &items) const {
        std::vector<Entry> entries;
        entries.reserve(items.size());
        for (const MySinglePicPtr &pic : items)
            entries.push_back({pic->spBaseName(), isCandidate(*pic), pic});
        std::ranges::stable_sort(entries, {}, &Entry::key);
        return entries;
    }

    bool isOfRun(const MySinglePic &pic) const { return m_namesOfRun.contains(pic.spName); }

    /// One group for one candidate: neither half ever belongs to another.
    void groupFirstMatch(const MySinglePicPtr &candidate, std::span<const Entry> others) {
        for (const Entry &other : others) {
            if (hasGroup(*candidate))
                break;
            if (!hasGroup(*other.pic) && (isOfRun(*candidate) || isOfRun(*other.pic)))
                groupIfPair(candidate, other.pic);
        }
        if (m_context.occasion == GroupingOccasion::Move)
            candidate->importState.isPossibleBundlePicTemp = false;
    }

    void groupIfPair(const MySinglePicPtr &candidate, const MySinglePicPtr &other) {
        if (candidate->isMovie()) {
            if (isLiveMovieToPic(*candidate, *other, m_folder))
                merge({candidate, other, GroupKind::LivePhoto});
        } else if (isRawToPic(*candidate, *other, m_folder)) {
            merge({other, candidate, GroupKind::RawAndJpeg});
        }
    }

    void merge(const MergedGroup &group) {
        const auto &[dependent, master, kind] = group;
        const bool isLivePhoto = kind == GroupKind::LivePhoto;
        (isLivePhoto ? dependent : master)->importState.isPossibleBundlePic = false;
        moveInfosFromDependentToMaster(*dependent, *master, m_folder);
        makeTheDependentImageTo(dependent, master);
        auto &list =
            isLivePhoto ? m_folder.bundleDependentsLivePhotos : m_folder.bundleDependentsRawAndJPG;
        list.push_back(dependent);
        dependent->positions = {};
        master->livePhoto.livePhotoExactTimeCached.reset();
        changeDependentAndMaster(*dependent, *master, m_folder, m_context.zones,
                                 m_dateComparisonThresold);
        m_merged.push_back(group);
    }

    MySingleFolder &m_folder;
    const std::set<std::string> &m_namesOfRun;
    bool ImportState::*m_key;
    const GroupingContext &m_context;
    int m_dateComparisonThresold;
    std::vector<MergedGroup> m_merged;
};

std::vector<MySinglePicPtr> allImportRelevantFiles(const MySingleFolder &folder,
                                                   const std::vector<MySinglePicPtr> &newItems) {
    std::vector<MySinglePicPtr> items = folder.sfPicDetails_fullArray;
    for (const auto *list : {&folder.picsImportedAndTempStoredUntilAllReady, &newItems})
        items.insert(items.end(), list->begin(), list->end());
    return items;
}

} // namespace

GroupingResult checkForPossibleBundles(MySingleFolder &folder,
                                       const std::vector<MySinglePicPtr> &newItems,
                                       const std::set<std::string> &namesOfRun,
                                       const GroupingContext &context) {
    GroupingResult result;
    result.merged =
        GroupSearch(folder, namesOfRun, context).among(allImportRelevantFiles(folder, newItems));
    if (result.merged.empty())
        return result;
    std::unordered_set<MySinglePicPtr> dependents;
    for (const MergedGroup &group : result.merged)
        dependents.insert(group.dependent);
    const auto isDependent = [&](const auto &pic) { return dependents.contains(pic); };
    std::erase_if(folder.sfPicDetails_fullArray, isDependent);
    std::erase_if(folder.picsImportedAndTempStoredUntilAllReady, isDependent);
    std::ranges::copy_if(newItems, std::back_inserter(result.newDependents), isDependent);
    folder.takeHarmonizingRawJpgsType(context.defaults);
    folder.settleSortFolderLPsByMov(context.defaults);
    // Whether the two sides deviate depends on the folder's kind of harmonising, settled just now;
    // a movie may have got another date as the half of a live photo.
    for (const MergedGroup &group : result.merged)
        for (MySinglePic *half : {group.dependent.get(), group.master.get()})
            validateDateDifferences(*half, folder, context.zones);
    return result;
}

} // namespace chronomender
