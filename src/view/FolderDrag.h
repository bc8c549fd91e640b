// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateModifications.h"
#include "MySingleFolder.h"
#include "UndoManager.h"

namespace chronomender {

enum class DateChangeOutcome { Done, NothingChanged, RefusedOutOfBounds };

/// Gives the folder a new total shift, undoably. Refused as a whole when its first or last
/// correctable item would leave the bounds of all dates. Main thread.
DateChangeOutcome dragChangedDates(absl::Duration totalShift, MySingleFolder &folder,
                                   UndoManager &undo);

/// The same bounds for a shift of a single item, added to the one it has.
DateChangeOutcome dragMovesValuesBy(absl::Duration difference,
                                    const std::vector<MySinglePicPtr> &items, UndoManager &undo);
/// The same with a difference for each item. `selection` is the main item; see updateThumbValues.
DateChangeOutcome dragMovesValuesBy(std::vector<ShiftRecord> records, UndoManager &undo,
                                    const MySinglePicPtr &selection = nullptr);

/// A shift changes the item's place on the timeline: what stands for it there has a date, and one
/// that can be corrected.
bool followsShift(const MySinglePic &pic);
/// What is to be added to the item's shift so that it takes its place on the timeline by `date`.
absl::Duration differenceToDate(const MySinglePic &pic, Date date);

} // namespace chronomender
