// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripMetrics.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace chronomender {
namespace {

constexpr double spacing = 3;
constexpr double labelScale = 0.85;
constexpr double thumbToBar = 24, thumbToDrawer = 14;

/// Of the selection's frame around a thumbnail.
double frameWidth(const TimelineGeometry &geometry) {
    return geometry.addBorderSelection - 2.0;
}

} // namespace

StripMetrics stripMetrics(const QFont &font, int thumbSize, bool hasLabels) {
    StripMetrics metrics;
    const int side = std::clamp(thumbSize, smallestThumb, largestThumb);
    metrics.titleFont = font;
    metrics.titleFont.setBold(true);
    metrics.labelFont = font;
    if (font.pointSizeF() > 0)
        metrics.labelFont.setPointSizeF(font.pointSizeF() * labelScale);
    metrics.titleHeight = std::ceil(QFontMetricsF(metrics.titleFont).height() + 2 * spacing);
    metrics.labelHeight = hasLabels ? std::ceil(QFontMetricsF(metrics.labelFont).height()) : 0;
    metrics.barHeight = std::round(std::max(3.0, side / thumbToBar));
    metrics.drawerOffset = std::round(side / thumbToDrawer);
    metrics.geometry.thumbSize = static_cast<float>(side);
    const double frame = frameWidth(metrics.geometry);
    metrics.geometry.borderMarginVertical = static_cast<float>(metrics.titleHeight + frame);
    metrics.height = metrics.titleHeight + side + 2 * frame + spacing + metrics.barHeight +
                     metrics.labelHeight + metrics.drawerOffset + spacing;
    return metrics;
}

CellPlaces::CellPlaces(const StripMetrics &metrics, double left, bool isInDrawer) {
    const TimelineGeometry &geometry = metrics.geometry;
    const double top = geometry.borderMarginVertical + (isInDrawer ? metrics.drawerOffset : 0);
    const double width = geometry.cellWidth(), side = geometry.thumbSize;
    const double border = frameWidth(geometry);
    cell = {left, metrics.titleHeight, width, metrics.height - metrics.titleHeight};
    thumb = {left + 0.5 * geometry.gap, top, side, side};
    frame = thumb.adjusted(-border, -border, border, border);
    bar = {thumb.left(), frame.bottom() + spacing, side, metrics.barHeight};
    label = {left, bar.bottom(), width, metrics.labelHeight};
}

} // namespace chronomender
