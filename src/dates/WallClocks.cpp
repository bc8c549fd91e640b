// SPDX-License-Identifier: GPL-3.0-or-later
#include "WallClocks.h"

#include "MovieStampConversions.h"
#include "StampConversions.h"

namespace chronomender {
namespace {

constexpr absl::Duration sameMoment = absl::Seconds(300);
constexpr absl::Duration clockStep = absl::Hours(1);
constexpr int lastHourOfSteps = 5;

} // namespace

bool isBundlingAllowedForUtcDates(Date still, Date movie) {
    const absl::Duration difference = distance(still, movie);
    if (difference <= sameMoment)
        return true;
    return difference - clockStep <= sameMoment && isDstExceptionForUtcDate(still, movie);
}

bool isDstExceptionForUtcDate(Date still, Date movie) {
    const CivilFields first = civilFromInstant(still, absl::UTCTimeZone());
    const CivilFields second = civilFromInstant(movie, absl::UTCTimeZone());
    if (first.hour > lastHourOfSteps)
        return false;
    const bool isRising = first.minute == 59 && second.minute == 0;
    const bool isFalling = first.minute == 0 && second.minute == 59;
    const int hours = second.hour - first.hour;
    return (hours == 0 && (isRising || isFalling)) || (hours == 2 && isRising) ||
           (hours == -2 && isFalling);
}

bool areStampsOfOneMoment(const Bytes &stillStamp, const Bytes &movieStamp) {
    const absl::TimeZone utc = absl::UTCTimeZone();
    const OptionalDate still = dateFromExifData(stillStamp, nullptr, utc);
    const std::string_view text(movieStamp);
    const OptionalDate movie = dateIgnoringFromMDTATimeStamp(text.substr(0, text.find('\0')), utc);
    return isCleanDate(still) && isCleanDate(movie) && isBundlingAllowedForUtcDates(*still, *movie);
}

} // namespace chronomender
