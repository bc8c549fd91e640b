// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StripShared.h"

namespace chronomender {

/// What a strip shows now, with the pictures that are at hand and the drag that is under way.
/// `cursor` may be null.
StripPicture stripFrame(const StripShared &shared, const TimelineStrip &strip,
                        const StripMetrics &metrics, const MySinglePicPtr &cursor,
                        double pixelRatio);
/// Where to scroll so that the item stands in view as a whole; near by, no further than needed.
double scrollXToShow(const TimelineStrip &strip, std::int64_t index);

} // namespace chronomender
