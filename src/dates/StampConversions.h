// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "LocatedBytes.h"
#include "StampSyntax.h"
#include "Zones.h"

#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

// From wall-clock stamps to instants and back. Pure functions, safe on all threads. Zones are
// always given: there is no hidden system zone here.

/// The one place where a wall clock becomes an instant. A text that occurs twice means the later
/// instant, so that one hour less gives the same text again; a text that never occurs is read with
/// the offset that held before the step.
Date instantFromCivil(const CivilFields &fields, const absl::TimeZone &zone);
/// All that a wall clock can mean, for those who look for danger instead of choosing.
absl::TimeZone::TimeInfo meaningsOfCivil(const CivilFields &fields, const absl::TimeZone &zone);
/// Wall-clock fields of an instant, cut to whole seconds (towards the past).
CivilFields civilFromInstant(Date date, const absl::TimeZone &zone);

/// "yyyy:MM:dd HH:mm:ss" read in a zone. A stamp that is no date gives the distant past.
Date dateFromEXIFTimeStamp(std::string_view stamp, const absl::TimeZone &zone);
/// The same with a zone stamp "+02:00", which then replaces the zone; an absent or unreadable zone
/// stamp does not lose the date.
Date dateFromEXIFTimeStampAndOffset(std::string_view stamp,
                                    const std::optional<std::string> &offset,
                                    const absl::TimeZone &zone);
/// From the recorded bytes of a stamp and, where there is one, of its zone stamp; none when the
/// bytes hold no stamp at all.
OptionalDate dateFromExifData(const Bytes &stamp, const Bytes *offset, const absl::TimeZone &zone);

/// 19 characters and a zero byte; none for markers and outside the years 1 to 9999.
std::optional<Bytes> exifDataFromDate(Date date, const absl::TimeZone &zone);
/// "+02:00" and a zero byte. None for an offset that has seconds (as before standard time) or lies
/// beyond ±18:00: no zone stamp can say it.
std::optional<Bytes> exifOffsetDataFromSeconds(std::int32_t secondsEastOfUtc);
/// A stamp with its zone stamp, 20 and 7 bytes. None when the zone's offset at that date has
/// seconds or lies beyond ±18:00.
struct ExifWithOffset {
    Bytes stamp, offset;
};
std::optional<ExifWithOffset> exifWithOffsetDatasFromDate(Date date, const absl::TimeZone &zone);

/// `built`, with byte 10 taken over from `present`: a colon between date and time is kept on
/// writing.
Bytes keepingSeparator(Bytes built, const Bytes &present);

/// "yyyy:MM:dd HH:mm:ss" in UTC, for GPS stamps; "" for a date that cannot be written so.
std::string gpsTimeStampFromDate(Date date);
/// Reads that form as UTC; none when it is no date.
OptionalDate dateFromGpsTimeStamp(std::string_view stamp);

} // namespace chronomender
