// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TimelineStrip.h"

#include <absl/time/time.h>

namespace chronomender {

/// How finely a view shows its dates.
enum class DateScale : std::uint8_t { Year, Month, Day, Hour, Minute, Second };

/// The date as it is displayed in full on a scale, in the calendar of `zone`: the fields below the
/// scale are cut off. Dates that are displayed alike are equal, also in the hour that repeats when
/// daylight saving ends. None for an item without a date.
std::optional<absl::CivilSecond> dateDisplayModeFull(const MySinglePic &pic, DateScale scale,
                                                     absl::TimeZone zone);

/// Where a scroll by one chapter leads.
struct ChapterScroll {
    std::int64_t index = 0;              ///< of the item that comes to the left edge
    double scrollX = 0;                  ///< as far as the strip allows it
    double chapterScrollXInProgress = 0; ///< for the strip, until the scroll has ended
};

/// A chapter is a run of items that share one displayed date. The scroll starts at the item at the
/// left edge, or where a chapter scroll that still runs will end, and leads to the first item of
/// the next chapter; from the last chapter to the last item. None for an empty strip.
std::optional<ChapterScroll> scrollByDateChapterNext(const TimelineStrip &strip, DateScale scale,
                                                     absl::TimeZone zone);
/// The way back: to the first item of the chapter, and from there to the first of the one before.
std::optional<ChapterScroll> scrollByDateChapterPrevious(const TimelineStrip &strip,
                                                         DateScale scale, absl::TimeZone zone);

} // namespace chronomender
