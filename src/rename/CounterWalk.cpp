// SPDX-License-Identifier: GPL-3.0-or-later
#include "CounterWalk.h"

#include <unordered_set>

namespace chronomender {
namespace {

using FolderSet = std::unordered_set<const MySingleFolder *>;

FolderSet setOf(const std::vector<MySingleFolderPtr> &folders) {
    FolderSet set;
    for (const MySingleFolderPtr &folder : folders)
        set.insert(folder.get());
    return set;
}

/// What is counted, and by which key.
class Counting {
public:
    Counting(const RenameScope &scope, const RenameChoices &choices)
        : m_isRunning(choices.counterType == CounterType::Running &&
                      !choices.wantsCompoundAltCounter),
          m_isCompoundCounted(choices.wantsCompoundAltCounter),
          m_onlyFolders(setOf(scope.onlyFolders)),
          m_next(choices.firstCounter) {}

    /// The next number of the item's row of numbers.
    std::int64_t counterFor(const MySingleFolder *folder) {
        const void *key = folder;
        if (m_isRunning || (m_isCompoundCounted && m_onlyFolders.contains(folder)))
            key = this;
        return m_counters.try_emplace(key, m_next).first->second++;
    }

private:
    bool m_isRunning, m_isCompoundCounted;
    FolderSet m_onlyFolders;
    std::int64_t m_next;
    std::unordered_map<const void *, std::int64_t> m_counters;
};

template<class Each>
void forEachCounted(const RenameScope &scope, const RenameChoices &choices, const Each &each) {
    Counting counting(scope, choices);
    const bool countsSelection = scope.onlyPics && choices.rename_restrictCounter;
    std::unordered_set<const MySinglePic *> seen;
    for (const MySinglePicPtr &pic : countsSelection ? *scope.onlyPics : scope.source_full) {
        if (!seen.insert(pic.get()).second)
            continue;
        const MySingleFolderPtr folder = pic->spSingleRealFolder();
        each(pic, folder.get(), counting.counterFor(folder.get()));
    }
}

} // namespace

void walkCounters(
    const RenameScope &scope, const RenameChoices &choices,
    const std::function<void(const MySinglePicPtr &pic, std::int64_t counter)> &each) {
    const FolderSet session = setOf(scope.folders), named = setOf(scope.onlyFolders);
    std::unordered_set<const MySinglePic *> listed;
    if (scope.onlyPics)
        for (const MySinglePicPtr &pic : *scope.onlyPics)
            listed.insert(pic.get());
    forEachCounted(
        scope, choices,
        [&](const MySinglePicPtr &pic, const MySingleFolder *folder, std::int64_t counter) {
            const bool isListed = !scope.onlyPics || listed.contains(pic.get());
            const bool isNamed = named.empty() || named.contains(folder);
            if (isListed && isNamed && session.contains(folder) && !pic->isMovedToTrash &&
                !pic->bundleMasterImage())
                each(pic, counter);
        });
}

LiveCounters::LiveCounters(const RenameScope &scope, const RenameChoices &choices) {
    m_counters.reserve(scope.source_full.size());
    forEachCounted(scope, choices,
                   [this](const MySinglePicPtr &pic, const MySingleFolder *, std::int64_t counter) {
                       m_counters.emplace(pic.get(), counter);
                   });
}

std::optional<std::int64_t> LiveCounters::counterOfPic(const MySinglePic &pic) const {
    const auto found = m_counters.find(&pic);
    if (found == m_counters.end())
        return std::nullopt;
    return found->second;
}

} // namespace chronomender
