// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CellPainter.h"
#include "DragTarget.h"
#include "TimelineStrip.h"

#include <QPointF>

#include <functional>
#include <optional>
#include <vector>

namespace chronomender {

/// One cell of a strip that is to be drawn, by its left edge in the view.
struct StripCell {
    std::int64_t index = 0; ///< in the strip's list
    double left = 0;
    CellData data;
};
/// The part of a day that is in view.
struct StripChapter {
    double left = 0, right = 0;
    bool beginsHere = false; ///< its first item is in view
    QString title;           ///< "" for items without a date
};
/// Where the dragged item would go.
struct DropMark {
    DragType type = DragType::None;
    double left = 0; ///< of the cell in question, or of the one behind the gap
};
/// Told beside the pointer: the date that a drag would give, and how far that is.
struct CallOut {
    QPointF pointer;
    QString date, shift;
};

/// All that is drawn of a strip, for one frame. Logical pixels of the view.
struct StripPicture {
    StripMetrics metrics;
    double width = 0;
    std::vector<StripCell> cells;
    std::vector<StripChapter> chapters;
    std::optional<DropMark> drop;
    std::optional<QRectF> rectangle;
    std::optional<CallOut> callOut;
    QString emptyText; ///< for a strip without items
    bool hasFocus = false;
};

/// A drag that is under way, as a strip shows it.
struct ShownDrag {
    std::function<Date(const MySinglePic &)> date; ///< as the item shows it now
    std::function<bool(const MySinglePicPtr &)> isMoving;
    DragTarget target; ///< in the list as it is shown
};

/// What a layout asks beside the strip.
struct StripContents {
    const TimelineStrip &strip;
    const StripMetrics &metrics;
    const FilterContext &filters;
    absl::TimeZone zone; ///< of all days and times
    /// Puts a picture, or what stands for it, into the cell.
    std::function<void(const MySinglePicPtr &, CellData &)> picture;
    const ShownDrag *drag = nullptr; ///< null while nothing is dragged
    MySinglePicPtr cursor = nullptr;
    double extendedBy = 0; ///< how far beyond the view cells are wanted
};

/// What is in view of the strip, from its `scrollX` and `width`. Asks only the items that show.
StripPicture layOutStrip(const StripContents &contents);

} // namespace chronomender
