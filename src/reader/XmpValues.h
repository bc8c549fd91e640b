// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "XmpData.h"

#include <optional>
#include <string_view>

namespace chronomender {

// The written forms of XMP values, without any rules of zones.

/// The form of a date text, and whether it is one: a real date of 19 to 29 characters, or of 16 to
/// 26 without seconds. `subtype` is set with it. A zone beyond ±18:00 counts as a zone.
///
///     "2024-05-06T07:08:09.5+02:00"   Zoned
///     "2024-05-06T07:08+0200"         Zoned, subtype kXmpZoneWithoutColon | kXmpWithoutSeconds
XmpStampType verifiedXmpDateDataType(std::string_view text, unsigned &subtype);

/// Characters of a zoned stamp's zone: 6, or 5 without the colon.
constexpr std::size_t xmpZoneLength(unsigned subtype) {
    return subtype & kXmpZoneWithoutColon ? 5 : 6;
}
/// Characters of a stamp's date and time up to the seconds, or to the minutes without them.
constexpr std::size_t xmpClockLength(unsigned subtype) {
    return subtype & kXmpWithoutSeconds ? 16 : 19;
}

/// The zone of a stamp is within ±18:00 and has at most 59 minutes; true for stamps without one.
bool isXmpZoneInRange(std::string_view text, XmpStampType type, unsigned subtype);

/// A year, a month or a day alone: "2024", "2024-05", "2024-05-06".
bool isXmpDateWithoutTime(std::string_view text);

/// Which of the two coordinates a text is for.
enum class XmpAxis : std::uint8_t { Latitude, Longitude };

/// Degrees, south and west negative, of "48,30.5N", "48,30,30N" or "48.508"; `reference` is the
/// hemisphere where it is kept apart, else empty. None for other texts, for a hemisphere of the
/// other axis, and for degrees with minutes but without a hemisphere. The range is not looked at.
std::optional<double> degreesFromXmpCoordinate(std::string_view text, std::string_view reference,
                                               XmpAxis axis);

/// One of the letters of the axis: "N" and "S", "E" and "W".
bool isXmpReference(std::string_view text, XmpAxis axis);

/// A number without a sign: digits, and a point between them.
std::optional<double> xmpNumber(std::string_view text);

} // namespace chronomender
