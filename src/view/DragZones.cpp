// SPDX-License-Identifier: GPL-3.0-or-later
#include "DragZones.h"

#include <span>

namespace chronomender {
namespace {

constexpr float kSmallThumb = 64;
constexpr std::size_t kPartsOfCell = GapDefs.size() / 2;

DragTarget gapInFrontOf(std::int64_t index, std::int64_t count) {
    const bool isOuter = index == 0 || index == count;
    return {isOuter ? DragType::OuterEdge : DragType::Between, index};
}

} // namespace

DragTarget dragTargetAtHorizontalMouseLocation(const TimelineGeometry &geometry, float x,
                                               std::int64_t count) {
    if (count <= 0)
        return {};
    const std::int64_t index = geometry.picIndexAtHorizontalMouseLocation(x, true, count);
    const double cellStart = geometry.centerOf(index) - 0.5 * geometry.cellWidth();
    const double percent = 100.0 * (x - cellStart) / geometry.cellWidth();
    const bool isSmall = geometry.thumbSize < kSmallThumb;
    double end = 0;
    for (const GapDef &part :
         std::span(GapDefs).subspan(isSmall ? kPartsOfCell : 0, kPartsOfCell - 1)) {
        const bool isFirst = end == 0;
        end += part.widthInPercent;
        if (percent < end)
            return isFirst ? gapInFrontOf(index, count) : DragTarget{part.dragType, index};
    }
    return gapInFrontOf(index + 1, count);
}

} // namespace chronomender
