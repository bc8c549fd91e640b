// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace chronomender {

struct StripRect {
    float x = 0, y = 0, width = 0, height = 0;
    bool operator==(const StripRect &) const = default;
};

/// Where the thumbnails of a strip stand. Nothing is measured: every place is arithmetic on an
/// index. Pixels in the strip's own coordinates.
struct TimelineGeometry {
    float thumbSize = 128;
    float borderMarginHorizontal = 24, borderMarginHorizontalMinimum = 24;
    float borderMarginVertical = 24;
    float theThumbExtention = 0;
    float addBorderSelection = 6, addBorderMultiSelection = 4;
    float gap = 16;

    StripRect thumbRectCalculatedAtIndex(std::int64_t index, std::int64_t count,
                                         float categoryOffset = 0) const;
};

} // namespace chronomender
