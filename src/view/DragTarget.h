// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DragDates.h"
#include "TemporaryOrder.h"

namespace chronomender {

/// A place on a strip: an item by its index in the strip's list, or for OuterEdge and Between the
/// gap in front of the item of that index (the number of items stands for the end).
struct DragTarget {
    DragType dragType = DragType::None;
    std::int64_t index = 0;
    bool operator==(const DragTarget &) const = default;
};

/// What a drop on that place of the order's list goes by. What moves is no target and no neighbour:
/// a gap lies between the nearest items that stay, and the edge is the first or last of them that
/// has a date. Nothing (None) is an item without a date, a gap beside one, and a gap with nothing
/// on one side.
DragAim aimAt(DragTarget target, const TemporaryOrder &order, absl::Duration dragGapOuterEdges);

} // namespace chronomender
