// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateDrag.h"
#include "TimelineGeometry.h"

#include <array>

namespace chronomender {

/// A part of a cell and what a drop there means.
struct GapDef {
    DragType dragType;
    float widthInPercent; ///< of the cell
};

/// The parts of a cell from left to right: five for thumbnails of 64 pixels and more, then five
/// for smaller ones, where the narrow parts would be hard to hit.
inline constexpr std::array<GapDef, 10> GapDefs{{
    {DragType::Between, 15},
    {DragType::SecondBefore, 15},
    {DragType::Onto, 40},
    {DragType::SecondAfter, 15},
    {DragType::Between, 15},
    {DragType::Between, 20},
    {DragType::SecondBefore, 10},
    {DragType::Onto, 40},
    {DragType::SecondAfter, 10},
    {DragType::Between, 20},
}};

/// What a drop at x would mean on a strip of `count` items. Left of the first item's middle parts
/// and right of the last one's it is the outer edge. DragType::None on an empty strip.
DragTarget dragTargetAtHorizontalMouseLocation(const TimelineGeometry &geometry, float x,
                                               std::int64_t count);

} // namespace chronomender
