// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FreeNames.h"
#include "RenameChoices.h"

#include <functional>
#include <memory>
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
    MySinglePicPtr media;       ///< the item itself, or its group's dependent; null for a sidecar
    std::string extension;      ///< as its item holds it: "JPG", "CR2.xmp", "" without one
    std::string finalExtension; ///< in the letter case that is wanted
    std::string oldName, temporaryName, finalName;
    FileAttributes before;
    std::string presentName;   ///< where it stands now
    bool isLeftBehind = false; ///< it could not be moved, and its item goes on without it
    /// What the system says of it at its temporary name; most file systems change nothing.
    std::optional<FileAttributes> moved = {};

    bool isOnTheWay() const { return presentName != oldName && presentName == temporaryName; }
};

/// One item with its companions.
struct ItemMoves {
    MySinglePicPtr pic;
    std::string wantedBase;       ///< of all its files, without a number
    std::string wantedName;       ///< of the main file, with extension, without a number
    std::int64_t addedNumber = 0; ///< what all its files got behind their names; 0: none
    std::int64_t nextNumber = 0;  ///< what is tried next for this wanted name
    std::vector<FileMove> files;  ///< the main file first; a companion that is missing is left out
    std::vector<SaveError> errors;
    bool isRefused = false; ///< it stays where it is

    const FileMove &mainFile() const { return files.front(); }
    /// Some file gets another name.
    bool isMoving() const;
    void refuse(SaveErrorId id, std::string path, std::string systemText = {});
    /// Gives the final names of all files that are not left behind.
    void number(std::int64_t addedNumber);
};

struct FolderMoves {
    MySingleFolderPtr folder;
    std::optional<std::string> path; ///< none: the folder cannot be reached, all items are refused
    std::vector<ItemMoves> items;    ///< in the visible order
    std::shared_ptr<FreeNames> names = {}; ///< none without a path
    std::size_t mostNameBytes = 255;
    std::int64_t shortNames = 0; ///< counts temporary names that do not hold the wanted one
    bool isReached = false;      ///< a run has begun with it

    std::string pathOf(const std::string &name) const;
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

/// Gives all files of an item that moves temporary names that nobody has or will have.
void giveTemporaryNames(ItemMoves &item, FolderMoves &folder);
/// The number that is tried behind this one, where 0 stands for the name itself.
constexpr std::int64_t numberBehind(std::int64_t number) {
    return number == 0 ? 2 : number + 1;
}

} // namespace chronomender
