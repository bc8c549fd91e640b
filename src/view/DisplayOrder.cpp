// SPDX-License-Identifier: GPL-3.0-or-later
#include "DisplayOrder.h"

#include "ItemPrefetch.h"

#include <QCollator>

#include <algorithm>
#include <functional>
#include <utility>

namespace chronomender {

/// A name and what it sorts by. Making the key takes longer than all other sorting of an item.
struct DisplayOrder::NameKey {
    NameKey(std::string of, const QCollatorSortKey &sortKey) : name(std::move(of)), key(sortKey) {}
    std::string name;
    QCollatorSortKey key;
};

/// An item to be sorted.
struct DisplayOrder::Candidate {
    const MySinglePicPtr *pic;
    std::uint32_t folderIndex;
    std::int64_t formerPosition;
    NameKeyPtr nameKey;
};

/// The sort keys but for the name, small enough to be moved about.
struct DisplayOrder::Entry {
    Date date;
    std::int64_t category = 0; ///< rank of the folder
    std::uint32_t sessionUniqueId = 0;
    std::uint32_t candidate = 0;

    bool operator<(const Entry &other) const {
        if (date != other.date)
            return date < other.date;
        if (category != other.category)
            return category < other.category;
        return sessionUniqueId < other.sessionUniqueId;
    }
};

DisplayOrder::DisplayOrder() = default;
DisplayOrder::~DisplayOrder() = default;

std::optional<std::size_t> DisplayOrder::positionOf(const MySinglePic &pic) const {
    const auto position = static_cast<std::size_t>(pic.positions.indexInSource_full);
    if (position < m_pics.size() && m_pics[position].get() == &pic)
        return position;
    return std::nullopt;
}

void DisplayOrder::gather(std::vector<Candidate> &candidates, std::vector<Entry> &entries) {
    std::size_t count = 0;
    for (const MySingleFolderPtr &folder : m_folders)
        count += folder->sfPicDetails_fullArray.size();
    candidates.reserve(count);
    entries.reserve(count);
    for (std::size_t index = 0; index < m_folders.size(); ++index) {
        const std::vector<MySinglePicPtr> &pics = m_folders[index]->sfPicDetails_fullArray;
        for (std::size_t i = 0; i < pics.size(); ++i) {
            prefetchAhead(pics, i);
            const MySinglePicPtr &pic = pics[i];
            entries.push_back({pic->spDateTimeModified_sort(), m_folders[index]->folderSortGeneral,
                               pic->sessionUniqueId,
                               static_cast<std::uint32_t>(candidates.size())});
            const auto position = positionOf(*pic);
            candidates.push_back({&pic, static_cast<std::uint32_t>(index),
                                  position ? static_cast<std::int64_t>(*position) : -1,
                                  position ? std::move(m_nameKeys[*position]) : NameKeyPtr()});
        }
    }
}

const DisplayOrder::NameKey &DisplayOrder::nameKeyOf(Candidate &candidate) const {
    const std::string &name = (*candidate.pic)->spSortNameCachedErrorOrReal();
    if (!candidate.nameKey || candidate.nameKey->name != name)
        candidate.nameKey = std::make_unique<NameKey>(name, m_naturalOrder.sortKey(name));
    return *candidate.nameKey;
}

/// Natural order is by far the most expensive of the keys, so it is asked only where dates tie.
void DisplayOrder::sortTiesByName(std::vector<Entry> &entries,
                                  std::vector<Candidate> &candidates) const {
    std::vector<std::pair<const QCollatorSortKey *, Entry>> tied;
    for (auto begin = entries.begin(); begin != entries.end();) {
        if (entries.end() - begin > std::ptrdiff_t{kPrefetchDistance}) {
            const Candidate &ahead = candidates[(begin + kPrefetchDistance)->candidate];
            prefetch(&(*ahead.pic)->spName, ahead.nameKey.get());
        }
        const auto end = std::find_if(begin + 1, entries.end(), [&](const Entry &entry) {
            return entry.date != begin->date;
        });
        if (end - begin > 1) {
            tied.clear();
            for (auto entry = begin; entry != end; ++entry)
                tied.emplace_back(&nameKeyOf(candidates[entry->candidate]).key, *entry);
            std::ranges::sort(tied, [](const auto &a, const auto &b) {
                const int order = a.first->compare(*b.first);
                return order != 0 ? order < 0 : a.second < b.second;
            });
            std::ranges::transform(tied, begin, [](const auto &pair) { return pair.second; });
        }
        begin = end;
    }
}

/// Makes the sorted items the list, and numbers them.
void DisplayOrder::takeOver(const std::vector<Entry> &entries, std::vector<Candidate> &candidates) {
    std::vector<MySinglePicPtr> former = std::exchange(m_pics, {});
    m_pics.reserve(entries.size());
    m_folderIndices.clear();
    m_nameKeys.clear();
    std::vector<std::int64_t> nextInFolder(m_folders.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (i + kPrefetchDistance < entries.size())
            prefetch(&(*candidates[entries[i + kPrefetchDistance].candidate].pic)->positions);
        Candidate &candidate = candidates[entries[i].candidate];
        m_pics.push_back(takenFrom(former, candidate.formerPosition, *candidate.pic));
        m_folderIndices.push_back(candidate.folderIndex);
        m_nameKeys.push_back(std::move(candidate.nameKey));
        ListPositions &positions = m_pics.back()->positions;
        positions.indexInSource_full = static_cast<std::int64_t>(i);
        positions.indexInFolder_full = nextInFolder[candidate.folderIndex]++;
    }
    for (const MySinglePicPtr &gone : former)
        if (gone)
            gone->positions = {};
}

void DisplayOrder::sort(const std::vector<MySingleFolderPtr> &folders) {
    m_folders = folders;
    std::vector<Candidate> candidates;
    std::vector<Entry> entries;
    gather(candidates, entries);
    std::ranges::sort(entries, std::less<>());
    sortTiesByName(entries, candidates);
    takeOver(entries, candidates);
}

MySinglePicPtr takenFrom(std::vector<MySinglePicPtr> &givenUp, std::int64_t index,
                         const MySinglePicPtr &pic) {
    const auto position = static_cast<std::size_t>(index);
    if (position < givenUp.size() && givenUp[position] == pic)
        return std::move(givenUp[position]);
    return pic;
}

} // namespace chronomender
