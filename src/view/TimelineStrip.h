// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PicSet.h"
#include "TimelineGeometry.h"

#include <optional>
#include <vector>

namespace chronomender {

enum class TimelineKind : std::uint8_t {
    Main,
    Mirror, ///< the items of the main strip at another place in time
    Shelf,  ///< items of its own
};

/// What is selected on one strip.
struct PicSelection {
    MySinglePicPtr picSelection; ///< the main item; null for none
    PicSet multiSelectionNEW;    ///< with the main item; empty while that alone is selected

    bool contains(const MySinglePicPtr &pic) const {
        return multiSelectionNEW.empty() ? pic && pic == picSelection
                                         : multiSelectionNEW.contains(pic);
    }
    std::size_t count() const {
        return multiSelectionNEW.empty() ? (picSelection ? 1 : 0) : multiSelectionNEW.size();
    }
    /// All selected items, be it one.
    PicSet pics() const {
        return multiSelectionNEW.empty() && picSelection ? PicSet{picSelection} : multiSelectionNEW;
    }
    bool operator==(const PicSelection &) const = default;
};

/// One strip of equal thumbnails: its items in order, where it is scrolled to, what is selected.
/// Main thread.
struct TimelineStrip {
    TimelineKind kind = TimelineKind::Main;
    std::vector<MySinglePicPtr> theSource; ///< in the order of `source_full`
    /// The list as a change that is under way would have it; none otherwise.
    std::optional<std::vector<MySinglePicPtr>> tempSource;
    PicSelection selection;
    PicSelection hiddenSelection; ///< put aside; see hideSelection
    TimelineGeometry geometry;
    double scrollX = 0; ///< left edge of what is visible, in the strip's coordinates
    double width = 0;   ///< of what is visible
    /// Where a scroll by date chapters that still runs will end; below 0 when none does.
    double chapterScrollXInProgress = -1;
    std::int64_t theDrawerSelection = -1; ///< `spCategory` of the items drawn enlarged
    float drawerOffset = 0;               ///< how far those stand below the others

    const std::vector<MySinglePicPtr> &shown() const {
        return tempSource ? *tempSource : theSource;
    }
    std::int64_t count() const { return static_cast<std::int64_t>(shown().size()); }
    bool isShelf() const { return kind == TimelineKind::Shelf; }

    /// Place of the item in `theSource`; none when it does not stand there.
    std::optional<std::int64_t> indexOf(const MySinglePic &pic) const;
    /// The rectangle of the item shown at this index, with the offset of its category.
    StripRect thumbRectAtIndex(std::int64_t index) const;
};

} // namespace chronomender
