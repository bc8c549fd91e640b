// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderDrag.h"
#include "MyTimelinesController.h"

#include <memory>
#include <optional>
#include <vector>

namespace chronomender {

/// What a dragged thumbnail is dropped on.
enum class DragType : std::uint8_t {
    None = 0,
    OuterEdge = 1,    ///< before the first item or behind the last, by `dragGapOuterEdges`
    SecondBefore = 2, ///< one second before the target item
    SecondAfter = 3,  ///< one second behind it
    Between = 4,      ///< between two items, at the middle of their dates
    Onto = 5,         ///< onto an item, to share its date exactly
};

/// A place on a strip: an item by its index in the strip's list, or for OuterEdge and Between the
/// gap in front of the item of that index (the number of items stands for the end).
struct DragTarget {
    DragType dragType = DragType::None;
    std::int64_t index = 0;
    bool operator==(const DragTarget &) const = default;
};

/// A drag under way: where the dragged items would come to stand in time, and the list as it would
/// be then. Nothing is changed before `commit`; until then the strip shows `tempSource`.
///
/// The main item's folder says what moves. In together mode it is the whole folder, by one shift;
/// in single mode the selected items by themselves. Main thread.
class DateDrag {
public:
    /// `dragged` is the item under the pointer; with a selection that holds it, all of the
    /// selection moves. Null when nothing of it can be moved.
    static std::unique_ptr<DateDrag> begin(const MySinglePicPtr &dragged,
                                           MyTimelinesController &timelines, TimelineStrip &strip,
                                           absl::Duration dragGapOuterEdges);
    /// Ends an unfinished drag as `cancel` does.
    ~DateDrag();

    /// The pointer is over another target; indices are those of the strip's list without the drag.
    void moveTo(DragTarget target);
    /// The date that the item shows during the drag.
    Date tempTimeDuringLiveMod(const MySinglePic &pic) const;
    /// The main item's way in time so far.
    absl::Duration tempMoveDateByDuringLiveMod() const;
    /// The dates become a change, undoably; refused as a whole out of bounds. The list is to be
    /// built again by the caller.
    DateChangeOutcome commit(UndoManager &undo);
    void cancel();

private:
    DateDrag();
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace chronomender
