// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "IntentRecord.h"

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

namespace chronomender {

/// A file that was to be renamed, and where it stands.
struct MovedFile {
    MoveIntent intent;                       ///< as it was recorded last
    std::vector<std::string> names;          ///< all that it may have by now
    std::optional<std::string> present = {}; ///< the one that it has; none: it has none of them
    FileAttributes attributes = {};          ///< of what stands there
    /// It has this name as well: a rename by way of a second link was interrupted.
    std::optional<std::string> leftover = {};

    std::string path(const std::string &name) const { return intent.folder + '/' + name; }
};

/// Files that keep one base name.
struct MovedItem {
    std::vector<std::size_t> units; ///< the records of it
    std::vector<MovedFile> files;   ///< the main file first
};
/// What the units have to rename. A file that is recorded again is taken from the last record, and
/// the units that record it are one item.
std::vector<MovedItem> itemsOf(std::span<const RecordedUnit> units);

/// What stands in a folder now.
struct ListedFolder {
    std::unordered_set<std::string> names;
    bool hasLastingInodes = true;
    bool hasAny = false; ///< of the files that are looked for
    FileError error;     ///< code 0: it can be read
};
using ListedFolders = std::map<std::string, ListedFolder>;

/// Finds each file by what it is: by its inode, or where those do not last, by its size and
/// modification date. Of two files that cannot be told apart and whose names could have changed
/// places, nothing is found. Reads only.
ListedFolders findFiles(std::vector<MovedItem> &items, FileLayer &files,
                        const std::function<bool(int descriptor)> &hasLastingInodes);

} // namespace chronomender
