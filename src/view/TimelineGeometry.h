// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace chronomender {

struct StripRect {
    float x = 0, y = 0, width = 0, height = 0;
    bool operator==(const StripRect &) const = default;
};

/// Indices from `begin` up to, not with, `end`.
struct IndexRange {
    std::int64_t begin = 0, end = 0;
    std::int64_t count() const { return end - begin; }
    bool operator==(const IndexRange &) const = default;
};

/// Where the thumbnails of a strip stand. Nothing is measured: every place is arithmetic on an
/// index. Pixels in the strip's own coordinates; `count` is the number of items on the strip.
///
/// A cell is a thumbnail with half a gap on each side. With the values below, thumbnail 0 stands
/// from 24 to 152, and its cell reaches from 16 to 160.
///
/// In single precision the cell's border is exact to a pixel on strips of 16 million pixels
/// (116,000 thumbnails of 128), and to 3 pixels on strips of twice that length: less than half a
/// gap, so that a place on a thumbnail never finds its neighbour.
struct TimelineGeometry {
    float thumbSize = 128;
    float borderMarginHorizontal = 24, borderMarginHorizontalMinimum = 24;
    float borderMarginVertical = 24;
    float theThumbExtention = 0;
    float addBorderSelection = 6, addBorderMultiSelection = 4;
    float gap = 16;

    float cellWidth() const { return gap + thumbSize; }
    /// Of the whole strip, with both margins.
    double totalWidth(std::int64_t count) const;
    /// What is drawn of a thumbnail, with its selection frame. The zero rectangle before the first
    /// and behind the last item. `categoryOffset` moves items of an enlarged category down.
    StripRect thumbRectCalculatedAtIndex(std::int64_t index, std::int64_t count,
                                         float categoryOffset = 0) const;
    /// The same x and width, from 0 to 100.
    StripRect horizLocationRectForThumbAtIndex(std::int64_t index, std::int64_t count) const;
    /// Middle of the thumbnail alone.
    double centerOf(std::int64_t index) const;

    /// The item whose cell holds x; left of all it is the first, right of all none.
    std::optional<std::int64_t> picAtXLocation(float x, std::int64_t count) const;
    /// The index of the cell that holds x. Outside, the nearest one with `snapToLegal`, else -1;
    /// -1 as well on an empty strip.
    std::int64_t picIndexAtHorizontalMouseLocation(float x, bool snapToLegal,
                                                   std::int64_t count) const;
    /// The one of `candidates` whose middle is nearest to x, of two the first named; none for none.
    std::optional<std::int64_t> thumbNearestToPoint(float x,
                                                    std::span<const std::int64_t> candidates) const;

    /// The thumbnails whose frame shows in the view from `scrollX`, grown by `extendedBy` on both
    /// sides and then moved to the right.
    IndexRange visibleThumbsRangeExtendedBy(double extendedBy, double movingRightBy, double scrollX,
                                            double viewWidth, std::int64_t count) const;
    /// The thumbnails that show themselves, be it by one pixel.
    IndexRange trueVisibleThumbsRange(double scrollX, double viewWidth, std::int64_t count) const;

    // ---- where to scroll to
    /// The nearest position that leaves no empty space beside the strip.
    double clampedScrollX(double scrollX, double viewWidth, std::int64_t count) const;
    /// Brings the middle of the thumbnail to this place of the view. Not clamped.
    double scrollPicToPosition(std::int64_t index, double positionInView) const;
    /// Brings the thumbnail to the left edge of the view. Not clamped.
    double scrollPicToFront(std::int64_t index) const;
    /// How far from the left edge of the view the middle of the thumbnail in front stands.
    double thumbMovementFromCenter() const;

private:
    float frame() const { return addBorderSelection - 2.0F; }
    IndexRange rangeTouching(double left, double right, double overhang, std::int64_t count) const;
};

} // namespace chronomender
