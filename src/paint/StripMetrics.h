// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TimelineGeometry.h"

#include <QFont>
#include <QRectF>

namespace chronomender {

/// Sides of a thumbnail that a strip can be set to, in logical pixels.
inline constexpr int smallestThumb = 64, usualThumb = 128, largestThumb = 192;

/// How high the parts of a strip are, from the fonts and the size of a thumbnail: titles of
/// chapters above, then the thumbnails with their frames, the bars of folder colours and the times
/// below. Logical pixels; a screen of 200 % only draws them finer.
struct StripMetrics {
    QFont titleFont, labelFont;
    TimelineGeometry geometry; ///< for the strip that is drawn by these metrics
    double titleHeight = 0, barHeight = 0, labelHeight = 0;
    double drawerOffset = 0; ///< how far items of the selected folder stand below the others
    double height = 0;       ///< of all
};
/// Without labels there is no room for times.
StripMetrics stripMetrics(const QFont &font, int thumbSize, bool hasLabels = true);

/// The parts of one cell. Nothing of an item is drawn outside `cell`.
struct CellPlaces {
    QRectF cell, frame, thumb, bar, label;
    /// `left` is that of the cell, which has half a gap on each side of its thumbnail.
    CellPlaces(const StripMetrics &metrics, double left, bool isInDrawer);
};

} // namespace chronomender
