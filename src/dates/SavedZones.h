// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// One side of a folder's zones as a session stores them: names of zones or markers, and for each
/// the positions of its items in `sfPicDetails_fullArray`.
struct SavedTimeZones {
    std::optional<std::string> folderDefault; ///< stored under "_DEFAULT"
    std::map<std::string, std::vector<std::int64_t>> positions;
};

/// A group counts under its master; choices of items that left the folder are not stored.
SavedTimeZones saveableTimeZones(const ZoneAssignments &assignments, const MySingleFolder &folder);
/// Names and positions that do not exist (any more) are dropped, and the rest is kept; of an item
/// under several names the first counts. The folder must hold its items already.
ZoneAssignments timeZonesFromSavedData(const SavedTimeZones &saved, const MySingleFolder &folder,
                                       const Zones &zones);

} // namespace chronomender
