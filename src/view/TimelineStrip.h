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
};

/// One strip of equal thumbnails: its items in order, where it is scrolled to, what is selected.
/// Main thread.
struct TimelineStrip {
    TimelineKind kind = TimelineKind::Main;
    std::vector<MySinglePicPtr> theSource;
    /// The list as a change that is under way would have it; none otherwise.
    std::optional<std::vector<MySinglePicPtr>> tempSource;
    PicSelection selection;
    TimelineGeometry geometry;
    double scrollX = 0; ///< left edge of what is visible, in the strip's coordinates
    double width = 0;   ///< of what is visible

    const std::vector<MySinglePicPtr> &shown() const {
        return tempSource ? *tempSource : theSource;
    }
    bool isShelf() const { return kind == TimelineKind::Shelf; }
};

} // namespace chronomender
