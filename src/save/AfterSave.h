// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileWrite.h"
#include "PatchPlan.h"
#include "UndoManager.h"
#include "UserDefaults.h"

#include <vector>

namespace chronomender {

// What a save changes in the model. Main thread, unless told otherwise.

/// A copy of the item, filled from the file that the external tool has written by the plan. None
/// when that cannot be read, or a date in it is not the plan's. `zone` is the one that the file's
/// wall clocks were written in. Any thread; the item is only read.
MySinglePicPtr readBehindTool(const MySinglePic &pic, const PatchPlan &plan, OpenFile &file,
                              const absl::TimeZone &zone);

/// The item now stands for what its file holds: recorded bytes, OLD slots, main date and type.
/// What a fresh import of the file would show.
void applySavedPlan(MySinglePic &pic, const PatchPlan &plan, const PatchOutcome &outcome,
                    const MySingleFolder &folder, const Zones &zones);
/// The item stays unsaved and carries its error.
void applySaveFailure(MySinglePic &pic, const PatchOutcome &outcome, bool savingAll);

/// What became of a folder's items. Items that are in none of the lists were not part of the save.
struct FolderSaveSummary {
    std::vector<MySinglePicPtr> saved;
    /// Saved ones whose stamps must be read again in the zone that they were written in.
    std::vector<MySinglePicPtr> needingFullUpdate;
};

/// Ends a save of a folder in which at least one item was reached: zone choices move on, the shift
/// is gone from what was saved and stays, as single shifts, with what was not.
void clearDateValuesAfterSavingFolder(MySingleFolder &folder, const FolderSaveSummary &summary,
                                      UndoManager &undo, const Zones &zones,
                                      int dateComparisonThresold);

/// The stamps of the item must be read again after its save: its type depends on the file's date,
/// or one of its stamps reads back as another instant.
bool needsFullUpdate(const MySinglePic &pic, const PatchPlan &plan);

} // namespace chronomender
