// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemDates.h"

#include "SourceSlot.h"
#include "StampConversions.h"

#include <array>
#include <cmath>

namespace chronomender {
namespace {

constexpr std::size_t dateLength = 10; ///< "yyyy:MM:dd"
constexpr std::size_t rationalLength = 8;
constexpr std::size_t gpsTimeLength = 3 * rationalLength;
constexpr absl::Duration day = absl::Hours(24);
constexpr std::int64_t smallestGpsDifference = 300;

std::uint32_t number(std::string_view bytes, bool isBigEndian) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < 4; ++index)
        value = value << 8 | static_cast<unsigned char>(bytes[isBigEndian ? index : 3 - index]);
    return value;
}

/// A rational of the GPS directory; a zero denominator counts as 1.
double rational(std::string_view bytes, bool isBigEndian) {
    const std::uint32_t denominator = number(bytes.substr(4), isBigEndian);
    return static_cast<double>(number(bytes, isBigEndian)) / (denominator ? denominator : 1);
}

/// Rounds down, but lets 41.9999999999 from "0.7 minutes" pass as the 42 that was meant.
double wholePart(double value) {
    return std::floor(value + 1e-9);
}

/// " HH:mm:ss" of the three rationals of a GPS time. Fractions of hours and minutes carry over to
/// the next smaller unit, as some receivers write decimal minutes. None when out of range.
std::optional<std::string> timePart(const GpsTimeStamp &stamp) {
    const std::string_view bytes = stamp.value.data;
    if (bytes.size() < gpsTimeLength)
        return std::nullopt;
    const double hours = rational(bytes, stamp.needsConv);
    const double minutes =
        rational(bytes.substr(rationalLength), stamp.needsConv) + (hours - wholePart(hours)) * 60;
    const double seconds = rational(bytes.substr(2 * rationalLength), stamp.needsConv) +
                           (minutes - wholePart(minutes)) * 60;
    const std::array parts{wholePart(hours), wholePart(minutes), wholePart(seconds)};
    if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59)
        return std::nullopt;
    std::string text;
    for (double part : parts) {
        text += text.empty() ? ' ' : ':';
        text += static_cast<char>('0' + static_cast<int>(part) / 10);
        text += static_cast<char>('0' + static_cast<int>(part) % 10);
    }
    return text;
}

/// A time without its date was completed with the creation date's; around midnight that is the
/// neighbouring day.
Date movedToNearestDay(Date gpsDate, Date creationDate) {
    if (gpsDate - creationDate > day / 2)
        return gpsDate - day;
    return creationDate - gpsDate > day / 2 ? gpsDate + day : gpsDate;
}

} // namespace

bool isSourceMetaModAndYoungerThanFileCrea(const MySinglePic &pic, Date date,
                                           int dateComparisonThresold) {
    const OptionalDate &fileDate = pic.slots.fileCreationDateOLD;
    return isEligibleForYoungerThanFile(pic.spType) && isCleanDate(fileDate) && !isMarker(date) &&
           date - *fileDate > absl::Seconds(dateComparisonThresold);
}

OptionalDate updatedGpsDateWithCreationDate(const MySinglePic &pic,
                                            const OptionalDate &creationDate) {
    const auto &dateStamp = pic.singlePicAttributes.gpsDateStamp;
    const auto &timeStamp = pic.singlePicAttributes.gpsTimeStamp;
    const OptionalDate &present = pic.location.spGpsUTCDate;
    if (pic.location.isGpsXmp || (!dateStamp && !timeStamp) || (dateStamp && timeStamp && present))
        return present;

    const bool hasCreationDate = isCleanDate(creationDate);
    if (!(dateStamp && timeStamp) && !hasCreationDate)
        return std::nullopt;
    const std::string creation = hasCreationDate ? gpsTimeStampFromDate(*creationDate) : "";
    if (hasCreationDate && creation.empty())
        return std::nullopt;
    const auto time = timeStamp ? timePart(*timeStamp) : creation.substr(dateLength);
    if (!time)
        return std::nullopt;
    const std::string date = (dateStamp ? dateStamp->data : creation).substr(0, dateLength);
    const OptionalDate gpsDate = dateFromGpsTimeStamp(date + *time);
    return gpsDate && !dateStamp ? movedToNearestDay(*gpsDate, *creationDate) : gpsDate;
}

void updateGpsDateWithCreationDate(MySinglePic &pic, const OptionalDate &creationDate) {
    pic.location.spGpsUTCDate = updatedGpsDateWithCreationDate(pic, creationDate);
}

void updateMainDate(MySinglePic &pic) {
    const auto slot = sourceSlot(pic.spType);
    const OptionalDate &ofSlot =
        slot ? pic.slots.*description(*slot).oldDate : pic.slots.fileCreationDateOLD;
    // A header of a movie can hold nothing but its modification time.
    const OptionalDate &source =
        !ofSlot && isQtMovie(pic.spType) ? pic.slots.tiffDateTimeOLD : ofSlot;
    if (isCleanDate(source))
        pic.spDateTimeOriginal = *source;
}

std::int64_t differenceFromGPSDateToDate(const MySinglePic &pic, Date date) {
    if (!isCleanDate(pic.location.spGpsUTCDate) || isMarker(date))
        return 0;
    const std::int64_t seconds = absl::ToInt64Seconds(date - *pic.location.spGpsUTCDate);
    return std::abs(seconds) > smallestGpsDifference ? seconds : 0;
}

} // namespace chronomender
