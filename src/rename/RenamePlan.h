// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameChoices.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

struct RenameServices {
    FileLayer &files;
    const Zones &zones;
    const Cancellation &cancellation;
    RunJournal &journal;
    std::function<void(std::size_t done, std::size_t total)> progress; ///< may be empty
};

/// One file of an item on its way. No name is made from another one.
struct FileMove {
    std::string extension; ///< as its item holds it: "JPG", "CR2.xmp", "" without one
    std::string oldName, temporaryName, finalName;
    FileAttributes before;
    std::string presentName; ///< where it stands now
};

/// One item with its companions.
struct ItemMoves {
    MySinglePicPtr pic;
    std::string wantedName;       ///< of the main file, with extension, without a number
    std::int64_t addedNumber = 0; ///< what all its files got behind their names; 0: none
    std::int64_t nextNumber = 0;  ///< what is tried next for this wanted name
    std::vector<FileMove> files;  ///< the main file first; a companion that is missing is left out
    std::vector<SaveError> errors;
    bool isRefused = false; ///< it stays where it is

    /// Some file gets another name.
    bool isMoving() const;
};

struct FolderMoves {
    MySingleFolderPtr folder;
    std::optional<std::string> path; ///< none: the folder cannot be reached, all items are refused
    std::vector<ItemMoves> items;    ///< in the visible order
};

/// What a rename is going to do. Nothing has been moved.
struct RenamePlan {
    std::vector<FolderMoves> folders;
    bool wasCancelled = false;
};

/// Builds all names, proves every file that a save has not proved just before, and finds a free
/// name for each: names that the plan itself gives up count as free, so that items can swap. Reads
/// only. Worker thread, while the main thread changes no item.
RenamePlan planRename(const RenameScope &scope, const RenameChoices &choices,
                      const RenameServices &services);

/// What the plan comes to, one for each item, folder after folder.
std::vector<ItemRename> outcomesOf(const RenamePlan &plan);

} // namespace chronomender
