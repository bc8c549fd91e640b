// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace chronomender {

/// One shot in two files. The master is the raw file or the still and stays in the main list; the
/// dependent is the JPEG or the movie and follows it.
enum class GroupKind : std::uint8_t { RawAndJpeg, LivePhoto };

struct MergedGroup {
    MySinglePicPtr dependent, master;
    GroupKind kind{};
};

/// Candidates are marked by `isPossibleBundlePic`; those of files that are moved into the folder by
/// `isPossibleBundlePicTemp`, which is gone afterwards.
enum class GroupingOccasion : std::uint8_t { Import, Move };

struct GroupingContext {
    const Zones &zones;
    const UserDefaults &defaults;
    GroupingOccasion occasion = GroupingOccasion::Import;
};

struct GroupingResult {
    std::vector<MergedGroup> merged;           ///< in the order in which they were found
    std::vector<MySinglePicPtr> newDependents; ///< those of the new items that became dependents
};

/// Looks for raw files with their JPEG and for stills with their movie among the items of the
/// folder and the new items, which are not part of it yet. A group is made of items of exactly one
/// base name, at least one of which is in `namesOfRun`; so an item that is visible already may
/// become a master or a dependent. No item ever belongs to two groups.
///
/// A dependent hands its marks, its own shift and its zone to the master, leaves the folder's main
/// list and `picsImportedAndTempStoredUntilAllReady`, and joins the folder's list of dependents.
/// The caller adds those of `newItems` to the main list that are not in `newDependents`, tells
/// views of `merged`, and recounts the folder. Of the folder's `fixedDates`, a dependent's empty
/// tags are taken off where the master has none. Main thread.
///
///     new "a.CR2", visible "a.JPG"   merged {a.JPG, a.CR2}, newDependents {}
///     new "a.CR2" and "a.JPG"        merged {a.JPG, a.CR2}, newDependents {a.JPG}
GroupingResult checkForPossibleBundles(MySingleFolder &folder,
                                       const std::vector<MySinglePicPtr> &newItems,
                                       const std::set<std::string> &namesOfRun,
                                       const GroupingContext &context);

} // namespace chronomender
