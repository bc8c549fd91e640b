// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UndoManager.h"
#include "Zones.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace chronomender {

/// Zones to be assigned; a side without a choice stays as it is.
struct ZoneWish {
    std::optional<ZoneChoice> source, target;
};

/// Assigns zones to a folder, or to single items as exceptions from their folder's, and reads all
/// stamps again whose source zone changes. A source given alone makes a target that nobody chose
/// follow it, so that saying what a clock meant leaves no item unsaved. The number of items that
/// show another date now. Main thread.
std::size_t assignZones(MySingleFolder &folder, const ZoneWish &wish, const Zones &zones,
                        int dateComparisonThresold);
std::size_t assignZones(const std::vector<MySinglePicPtr> &pics, const ZoneWish &wish,
                        const Zones &zones, int dateComparisonThresold);

/// What an undo step of zones works with; the references outlive the undo manager.
struct ZoneUndo {
    UndoManager &undo;
    const Zones &zones;
    int dateComparisonThresold = 0;
};
/// The same as undoable steps, the items of several folders as one. Nothing is registered where no
/// assignment changed.
std::size_t assignZones(const std::vector<MySingleFolderPtr> &folders, const ZoneWish &wish,
                        const ZoneUndo &undo);
std::size_t assignZones(const std::vector<MySinglePicPtr> &pics, const ZoneWish &wish,
                        const ZoneUndo &undo);
/// Says whether header times of the folder's movies are local, as an undoable step; see
/// setQuicktimeMVHDTimezoneCorrection.
std::size_t changeMovieClock(MySingleFolder &folder, bool isLocal, const ZoneUndo &undo);

} // namespace chronomender
