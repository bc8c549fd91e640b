// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StripLayout.h"

namespace chronomender {

/// Draws the whole strip: `width` of the picture by `height` of its metrics, from (0, 0).
void paintStrip(QPainter &painter, const StripPicture &picture, const PaintPalette &palette);

} // namespace chronomender
