// SPDX-License-Identifier: GPL-3.0-or-later
#include "TimelineGeometry.h"

#include <algorithm>
#include <cmath>

namespace chronomender {

double TimelineGeometry::totalWidth(std::int64_t count) const {
    const double gaps = count > 0 ? double{gap} * static_cast<double>(count - 1) : 0;
    return double{thumbSize} * static_cast<double>(std::max<std::int64_t>(count, 0)) + gaps +
           2.0 * borderMarginHorizontal;
}

StripRect TimelineGeometry::thumbRectCalculatedAtIndex(std::int64_t index, std::int64_t count,
                                                       float categoryOffset) const {
    if (index < 0 || index >= count)
        return {};
    const float b = frame();
    const float side = 2 * b + thumbSize + 2 * theThumbExtention;
    return {(gap + thumbSize) * static_cast<float>(index) + borderMarginHorizontal - b -
                theThumbExtention,
            borderMarginVertical - b - theThumbExtention + categoryOffset, side, side};
}

StripRect TimelineGeometry::horizLocationRectForThumbAtIndex(std::int64_t index,
                                                             std::int64_t count) const {
    const StripRect thumb = thumbRectCalculatedAtIndex(index, count);
    return thumb == StripRect{} ? thumb : StripRect{thumb.x, 0, thumb.width, 100};
}

double TimelineGeometry::centerOf(std::int64_t index) const {
    return double{cellWidth()} * static_cast<double>(index) + borderMarginHorizontal +
           0.5 * thumbSize;
}

std::optional<std::int64_t> TimelineGeometry::picAtXLocation(float x, std::int64_t count) const {
    const float cell = (x - (borderMarginHorizontal - 0.5F * gap)) / (thumbSize + gap);
    if (count <= 0 || !(cell < static_cast<float>(count)))
        return std::nullopt;
    return static_cast<std::int64_t>(std::max(std::floor(cell), 0.0F));
}

std::int64_t TimelineGeometry::picIndexAtHorizontalMouseLocation(float x, bool snapToLegal,
                                                                 std::int64_t count) const {
    // Within bounds that a conversion to whole numbers can take.
    const float cell = std::clamp((x - borderMarginHorizontal + 0.5F * gap) / (thumbSize + gap),
                                  -1.0F, static_cast<float>(count));
    const auto index = static_cast<std::int64_t>(std::floor(cell));
    if (index >= 0 && index < count)
        return index;
    return snapToLegal && count > 0 ? std::clamp<std::int64_t>(index, 0, count - 1) : -1;
}

std::optional<std::int64_t>
TimelineGeometry::thumbNearestToPoint(float x, std::span<const std::int64_t> candidates) const {
    const auto nearest = std::ranges::min_element(
        candidates, {}, [&](std::int64_t index) { return std::abs(centerOf(index) - x); });
    return nearest == candidates.end() ? std::nullopt : std::optional(*nearest);
}

IndexRange TimelineGeometry::rangeTouching(double left, double right, double overhang,
                                           std::int64_t count) const {
    const double cell = cellWidth(), origin = borderMarginHorizontal;
    const auto last = static_cast<double>(std::max<std::int64_t>(count, 0));
    const double begin = std::floor((left - origin - thumbSize - overhang) / cell) + 1;
    const double end = std::ceil((right - origin + overhang) / cell);
    const auto first = static_cast<std::int64_t>(std::clamp(begin, 0.0, last));
    return {first, std::max(first, static_cast<std::int64_t>(std::clamp(end, 0.0, last)))};
}

IndexRange TimelineGeometry::visibleThumbsRangeExtendedBy(double extendedBy, double movingRightBy,
                                                          double scrollX, double viewWidth,
                                                          std::int64_t count) const {
    const double left = scrollX + movingRightBy;
    return rangeTouching(left - extendedBy, left + viewWidth + extendedBy,
                         frame() + theThumbExtention, count);
}

IndexRange TimelineGeometry::trueVisibleThumbsRange(double scrollX, double viewWidth,
                                                    std::int64_t count) const {
    return rangeTouching(scrollX, scrollX + viewWidth, 0, count);
}

double TimelineGeometry::clampedScrollX(double scrollX, double viewWidth,
                                        std::int64_t count) const {
    return std::clamp(scrollX, 0.0, std::max(totalWidth(count) - viewWidth, 0.0));
}

double TimelineGeometry::scrollPicToPosition(std::int64_t index, double positionInView) const {
    return centerOf(index) - positionInView;
}

double TimelineGeometry::scrollPicToFront(std::int64_t index) const {
    return scrollPicToPosition(index, thumbMovementFromCenter());
}

double TimelineGeometry::thumbMovementFromCenter() const {
    return borderMarginHorizontalMinimum + 0.5 * thumbSize;
}

} // namespace chronomender
