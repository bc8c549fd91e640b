// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <set>
#include <string>
#include <vector>

namespace chronomender {

/// The session's folders in order, and the pool of folder colours. Main thread.
class MyDroppedFolders {
public:
    /// `colorCount`: how many colours the user's palette has.
    explicit MyDroppedFolders(int colorCount = 12);

    const std::vector<MySingleFolderPtr> &droppedFolders() const { return m_droppedFolders; }
    /// Appends a folder and gives it its rank and its colour.
    void append(const MySingleFolderPtr &folder);
    /// Inserts a subfolder right behind its parent.
    void insertBehind(const MySingleFolderPtr &folder, const MySingleFolderPtr &parent);
    void remove(const std::vector<MySingleFolderPtr> &deleted);

    /// The first folder with exactly this path; none otherwise.
    MySingleFolderPtr folderWithPath(const std::string &path) const;
    /// The folder that is the same directory (device and inode) under whatever path; none
    /// otherwise.
    MySingleFolderPtr folderWithIdentity(const FileAttributes &attributes) const;
    static MediaTypesState mediaStateForFolders(const std::vector<MySingleFolderPtr> &folders);

    /// The lowest free colour, taken out of the pool; `noColorIndex` when none is left.
    std::uint16_t indexOfNextColor();
    /// Takes a folder's colour back while the folder still stands in the list. With more folders
    /// than colours it passes straight to the first folder without one.
    void recycleColorIndexFromFolder(MySingleFolder &folder);
    /// Takes the colours of folders back that left the list, and gives them on in list order.
    void recycleColorIndexFromDeletedFolders(const std::vector<MySingleFolderPtr> &deleted);
    /// The user's palette changed its size; new colours join the pool.
    void setColorCount(int colorCount);
    void possiblyUseNewlyAddedColors();
    /// A folder's colour differs from its place in the list.
    bool canReDistributeColors() const;
    /// Gives all colours out anew, in list order.
    void reDistributeColors();

private:
    bool hasColor(const MySingleFolder &folder) const;
    void giveColorsToFoldersWithoutOne();

    int m_maxColorIndex;
    std::int64_t m_nextRank = 0;
    std::set<std::uint16_t> m_availableColorIndexes;
    std::vector<MySingleFolderPtr> m_droppedFolders;
};

} // namespace chronomender
