// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"

#include "NaturalCompare.h"

#include <algorithm>
#include <iterator>

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

/// Display order. Names are compared only between items of one date: natural order is by far the
/// most expensive of the keys.
class DisplayOrder {
public:
    bool operator()(const Entry &a, const Entry &b) const {
        if (a.date != b.date)
            return a.date < b.date;
        const MySinglePic &left = **a.pic, &right = **b.pic;
        const int names = m_names.compare(left.spSortNameCachedErrorOrReal(),
                                          right.spSortNameCachedErrorOrReal());
        if (names != 0)
            return names < 0;
        if (a.category != b.category)
            return a.category < b.category;
        return left.sessionUniqueId < right.sessionUniqueId;
    }

private:
    NaturalCompare m_names;
};

} // namespace

void SourceBuilder::buildNewSource(const std::vector<MySingleFolderPtr> &folders) {
    std::vector<Entry> entries = gathered(folders);
    const DisplayOrder order;
    std::sort(entries.begin(), entries.end(),
              [&](const Entry &a, const Entry &b) { return order(a, b); });

    m_sourceFull.clear();
    m_sourceFull.reserve(entries.size());
    std::vector<std::int64_t> nextInFolder(folders.size(), 0);
    for (const Entry &entry : entries) {
        ListPositions &positions = (*entry.pic)->positions;
        positions.indexInSource_full = std::ssize(m_sourceFull);
        positions.indexInSource_filtered = std::ssize(m_sourceFull);
        positions.indexInFolder_full = nextInFolder[entry.folder]++;
        m_sourceFull.push_back(*entry.pic);
    }
}

} // namespace chronomender
