// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "NaturalCompare.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace chronomender {

/// The items of all folders by the date shown, then by name in natural order, then by folder, then
/// by order of creation. Keeps what it worked out for the next time: an item finds its former place
/// by its own `indexInSource_full`. Main thread.
class DisplayOrder {
public:
    DisplayOrder();
    ~DisplayOrder();

    /// Sorts the items of the folders and gives each its `indexInSource_full` and
    /// `indexInFolder_full`. An item that was listed before and is no more loses all its places.
    void sort(const std::vector<MySingleFolderPtr> &folders);

    const std::vector<MySinglePicPtr> &source_full() const { return m_pics; }
    /// The folders that were sorted, and which of them the item at a position stands in.
    const std::vector<MySingleFolderPtr> &folders() const { return m_folders; }
    std::size_t folderIndexAt(std::size_t position) const { return m_folderIndices[position]; }
    /// The item's position, none when it is not listed here.
    std::optional<std::size_t> positionOf(const MySinglePic &pic) const;

private:
    struct NameKey;
    struct Entry;
    struct Candidate;
    using NameKeyPtr = std::unique_ptr<NameKey>;

    void gather(std::vector<Candidate> &candidates, std::vector<Entry> &entries);
    void sortTiesByName(std::vector<Entry> &entries, std::vector<Candidate> &candidates) const;
    const NameKey &nameKeyOf(Candidate &candidate) const;
    void takeOver(const std::vector<Entry> &entries, std::vector<Candidate> &candidates);

    NaturalCompare m_naturalOrder;
    std::vector<MySingleFolderPtr> m_folders;
    // One of each for each item, in display order.
    std::vector<MySinglePicPtr> m_pics;
    std::vector<std::uint32_t> m_folderIndices;
    std::vector<NameKeyPtr> m_nameKeys; ///< null until the item's date first ties with another's
};

/// The item out of a list that is given up, where it stands at this index, else a new owner of it.
/// Counting the owners of very many items anew costs more than all else that is done with a list.
MySinglePicPtr takenFrom(std::vector<MySinglePicPtr> &givenUp, std::int64_t index,
                         const MySinglePicPtr &pic);

} // namespace chronomender
