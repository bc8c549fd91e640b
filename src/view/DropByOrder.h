// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DragDates.h"
#include "FolderDrag.h"

#include <vector>

namespace chronomender {

/// Items that are to take their dates from others, as a drag gives them, without a strip.
struct DropByOrder {
    /// In display order; none of them a target, and all with a date that can be corrected.
    std::vector<MySinglePicPtr> pics;
    /// One of SecondBefore, SecondAfter, Between and Onto. The first item goes there, the others
    /// with it; see dragDates.
    DragType dragType = DragType::None;
    /// One item with a date; of Between two, in either order. Items in between stay.
    std::vector<MySinglePicPtr> targets;
};

/// Carries it out as one undoable step. Folders of the items go into single mode first, where each
/// item keeps the date that it shows. Refused as a whole out of bounds. Main thread.
DateChangeOutcome dropByOrder(const DropByOrder &drop, UndoManager &undo);

} // namespace chronomender
