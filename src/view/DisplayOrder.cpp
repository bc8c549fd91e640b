// SPDX-License-Identifier: GPL-3.0-or-later
#include "DisplayOrder.h"

#include "NaturalCompare.h"

#include <QCollator>

#include <algorithm>
#include <iterator>
#include <span>
#include <tuple>

namespace chronomender {

namespace {

/// One item with its sort keys. The date is asked once per item and not once per comparison.
struct Entry {
    Date date;
    std::int64_t category = 0;
    std::size_t folder = 0; ///< index among the folders given
    const MySinglePicPtr *pic = nullptr;
};

std::vector<Entry> gathered(const std::vector<MySingleFolderPtr> &folders) {
    std::size_t count = 0;
    for (const MySingleFolderPtr &folder : folders)
        count += folder->sfPicDetails_fullArray.size();
    std::vector<Entry> entries;
    entries.reserve(count);
    for (std::size_t index = 0; index < folders.size(); ++index)
        for (const MySinglePicPtr &pic : folders[index]->sfPicDetails_fullArray)
            entries.push_back(
                {pic->spDateTimeModified_sort(), folders[index]->folderSortGeneral, index, &pic});
    return entries;
}

/// Display order but for the names.
bool isBefore(const Entry &a, const Entry &b) {
    return std::tuple(a.date, a.category, (*a.pic)->sessionUniqueId) <
           std::tuple(b.date, b.category, (*b.pic)->sessionUniqueId);
}

/// Puts items of one date in the natural order of their names; alike names keep their order.
void sortByName(std::span<Entry> tied, const NaturalCompare &order) {
    struct Keyed {
        QCollatorSortKey key;
        Entry entry;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(tied.size());
    for (const Entry &entry : tied)
        keyed.push_back({order.sortKey((*entry.pic)->spSortNameCachedErrorOrReal()), entry});
    std::ranges::stable_sort(
        keyed, [](const Keyed &a, const Keyed &b) { return a.key.compare(b.key) < 0; });
    std::ranges::transform(keyed, tied.begin(), &Keyed::entry);
}

/// Natural order is by far the most expensive of the keys, so it is asked only where dates tie.
void sortForDisplay(std::vector<Entry> &entries) {
    std::ranges::sort(entries, isBefore);
    const NaturalCompare order;
    for (auto begin = entries.begin(); begin != entries.end();) {
        const auto end = std::find_if(
            begin, entries.end(), [&](const Entry &entry) { return entry.date != begin->date; });
        if (end - begin > 1)
            sortByName({begin, end}, order);
        begin = end;
    }
}

} // namespace

std::vector<MySinglePicPtr> sortedForDisplay(const std::vector<MySingleFolderPtr> &folders) {
    std::vector<Entry> entries = gathered(folders);
    sortForDisplay(entries);
    std::vector<MySinglePicPtr> sorted;
    sorted.reserve(entries.size());
    std::ranges::transform(entries, std::back_inserter(sorted),
                           [](const Entry &entry) { return *entry.pic; });
    return sorted;
}

} // namespace chronomender
