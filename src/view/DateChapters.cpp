// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateChapters.h"

#include <algorithm>

namespace chronomender {
namespace {

/// The item that stands at the left edge, or will.
std::int64_t frontIndex(const TimelineStrip &strip) {
    const double left =
        strip.chapterScrollXInProgress >= 0 ? strip.chapterScrollXInProgress : strip.scrollX;
    const double x = left + strip.geometry.thumbMovementFromCenter();
    return strip.geometry.picAtXLocation(static_cast<float>(x), strip.count())
        .value_or(strip.count() - 1);
}

ChapterScroll scrollTo(const TimelineStrip &strip, std::int64_t index) {
    const double target = strip.geometry.scrollPicToFront(index);
    return {index, strip.geometry.clampedScrollX(target, strip.width, strip.count()),
            std::max(target, 0.0)};
}

} // namespace

std::optional<absl::CivilSecond> dateDisplayModeFull(const MySinglePic &pic, DateScale scale,
                                                     absl::TimeZone zone) {
    const Date date = pic.spDateTimeModified_sort();
    if (isMarker(date))
        return std::nullopt;
    const absl::CivilSecond second = absl::ToCivilSecond(date, zone);
    switch (scale) {
    case DateScale::Year:
        return absl::CivilSecond(absl::CivilYear(second));
    case DateScale::Month:
        return absl::CivilSecond(absl::CivilMonth(second));
    case DateScale::Day:
        return absl::CivilSecond(absl::CivilDay(second));
    case DateScale::Hour:
        return absl::CivilSecond(absl::CivilHour(second));
    case DateScale::Minute:
        return absl::CivilSecond(absl::CivilMinute(second));
    case DateScale::Second:
        break;
    }
    return second;
}

std::optional<ChapterScroll> scrollByDateChapterNext(const TimelineStrip &strip, DateScale scale,
                                                     absl::TimeZone zone) {
    const auto &items = strip.shown();
    if (items.empty())
        return std::nullopt;
    const std::int64_t front = frontIndex(strip);
    const auto chapter = dateDisplayModeFull(*items[static_cast<std::size_t>(front)], scale, zone);
    const auto next = std::find_if(items.begin() + front, items.end(), [&](const auto &pic) {
        return dateDisplayModeFull(*pic, scale, zone) != chapter;
    });
    return scrollTo(strip, std::min<std::int64_t>(next - items.begin(), strip.count() - 1));
}

std::optional<ChapterScroll> scrollByDateChapterPrevious(const TimelineStrip &strip,
                                                         DateScale scale, absl::TimeZone zone) {
    const auto &items = strip.shown();
    if (items.empty())
        return std::nullopt;
    // From the first item of a chapter, the item before it says where to go.
    std::int64_t index = std::max<std::int64_t>(frontIndex(strip) - 1, 0);
    const auto chapterAt = [&](std::int64_t place) {
        return dateDisplayModeFull(*items[static_cast<std::size_t>(place)], scale, zone);
    };
    const auto chapter = chapterAt(index);
    while (index > 0 && chapterAt(index - 1) == chapter)
        --index;
    return scrollTo(strip, index);
}

} // namespace chronomender
