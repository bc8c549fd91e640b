// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <cstddef>
#include <cstdint>
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

/// The dates that a drop goes by. None of them is a marker.
struct DragAim {
    DragType dragType = DragType::None;
    Date date;  ///< of the target item, of the item at the edge, or of the earlier one of a gap
    Date later; ///< (Between) of the other one
    /// (OuterEdge) How far out, negative before the first item.
    absl::Duration outwards = absl::ZeroDuration();
};

/// Where an item goes whose date is `main`. One second before or behind an item is meant in whole
/// seconds: with `main` at 9:00:00.25, one second behind 10:00:05.75 is 10:00:06.25.
Date dragDate(const DragAim &aim, Date main);

/// Where all items of a drag go; `main` is the place of the main item among their dates, which
/// stand in the order of the list. Items keep their offsets to the main one, except that several
/// items in a gap of more than 2 s spread in equal steps, and in a smaller one share its middle.
enum class DragUnit { Items, WholeFolder };
std::vector<Date> dragDates(const DragAim &aim, const std::vector<Date> &dates, std::size_t main,
                            DragUnit unit);

} // namespace chronomender
