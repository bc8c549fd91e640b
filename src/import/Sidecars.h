// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "FolderBatch.h"
#include "FolderNames.h"
#include "XmpData.h"

#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// A sidecar, and the items that it may belong to.
struct SidecarMatch {
    SidecarFile file;
    SidecarKind kind{};
    MySinglePicPtr own; ///< the item whose whole name it repeats, as "IMG_1.CR2.xmp"
    std::vector<MySinglePicPtr> candidates; ///< items of its base name, masters before dependents
    std::optional<XmpSidecar> content;      ///< of XMP sidecars that could be read
};

// The three steps in which sidecars find their items.

/// Looks for the items of each sidecar among those of the folder, with their dependents, and the
/// new ones. Sidecars that their item has already are left out, and so are those found
/// automatically that fit nobody. Main thread.
std::vector<SidecarMatch> matchSidecars(std::vector<SidecarFile> sidecars,
                                        const MySingleFolder &folder,
                                        const std::vector<MySinglePicPtr> &newItems);

/// Reads the XMP sidecars in parallel; after a cancellation the unread ones are dropped. Touches no
/// item. `folderPath` is where the sidecars are now.
void readSidecars(std::vector<SidecarMatch> &matches, const std::string &folderPath,
                  const Cancellation &cancellation);

/// Gives each sidecar to its item: to the one whose whole name it repeats; to the one that it names
/// by extension; to the only one; to the raw file among several. A group counts as one item, its
/// master; what a dependent takes, its master takes as well. Errors tell which sidecars found no
/// owner; nothing is said of those found automatically. Main thread.
std::vector<ImportError> giveSidecars(std::vector<SidecarMatch> matches,
                                      const std::string &folderPath);

} // namespace chronomender
