// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DragTarget.h"
#include "FolderDrag.h"
#include "MyTimelinesController.h"
#include "NewDates.h"

#include <memory>
#include <optional>

namespace chronomender {

/// A drag under way: where the dragged items would come to stand in time, and the list as it would
/// be then. Nothing is changed before `commit`; until then the strip, and one that shows the same
/// list, show it as `tempSource`.
///
/// The main item's folder says what moves. In together mode it is the whole folder, by one shift,
/// be its items on the strip or not. In single mode it is the selected items by themselves: those
/// that stand on the strip, have a date that can be corrected, and whose own folder is in single
/// mode too. An item of another folder in together mode stays, as it could not move alone.
///
/// Where the main item goes, and others with it: see aimAt and dragDates.
///
///     auto drag = DateDrag::begin(pic, timelines, timelines.mainTimeline(), absl::Seconds(60));
///     drag->moveTo({DragType::Between, 7});
///     drag->commit(undo);
///
/// The list is in the order of its dates, as a build leaves it. It may be built again meanwhile.
/// `timelines` outlives the drag. Main thread.
class DateDrag {
public:
    /// `dragged` is the item under the pointer; with a selection that holds it, all of the
    /// selection moves. Null when nothing of it can be moved.
    static std::unique_ptr<DateDrag> begin(const MySinglePicPtr &dragged,
                                           MyTimelinesController &timelines, TimelineStrip &strip,
                                           absl::Duration dragGapOuterEdges);
    /// Ends an unfinished drag as `cancel` does.
    ~DateDrag();
    DateDrag(const DateDrag &) = delete;
    DateDrag &operator=(const DateDrag &) = delete;

    /// The pointer is over another target; indices are those of the strip's list without the drag.
    /// Over what is no target all items are where they began.
    void moveTo(DragTarget target);
    /// The date that the item shows during the drag.
    Date tempTimeDuringLiveMod(const MySinglePic &pic) const;
    /// The same for a date calculation: where the item would stand, and by which way.
    LiveDrag liveDragOf(const MySinglePic &pic) const;
    /// The folder that moves as a whole; null where items move by themselves.
    MySingleFolderPtr folder() const;
    /// The drag moves this item, be it with its folder. False once the drag has ended.
    bool isMoving(const MySinglePicPtr &pic) const;
    /// The main item's way in time so far.
    absl::Duration tempMoveDateByDuringLiveMod() const;
    /// The item's place in the strip's list as it is during the drag; none where it is not there.
    std::optional<std::int64_t> tempIdxFullDuringLiveMod(const MySinglePic &pic) const;
    /// The dates become a change, undoably; refused as a whole out of bounds. The drag ends in any
    /// case. The list is to be built again by the caller.
    DateChangeOutcome commit(UndoManager &undo);
    void cancel();

private:
    struct State;
    explicit DateDrag(std::unique_ptr<State> state);
    std::unique_ptr<State> m_state; ///< null once the drag has ended
};

} // namespace chronomender
