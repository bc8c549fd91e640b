// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocatedBytes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

// The written forms of dates inside files, by position and without any zone rules. Import, save and
// the checks before a save all read stamps with these functions, so that what a save builds is
// judged by the same reader that will meet it in the file.

/// Wall-clock fields of a stamp, range-checked: year 1 to 9999, a real day of the proleptic
/// Gregorian calendar, 00:00:00 to 23:59:59.
struct CivilFields {
    int year = 1, month = 1, day = 1, hour = 0, minute = 0, second = 0;

    bool operator==(const CivilFields &) const = default;
};

/// The 19 characters of a stamp held in 20 bytes, or none. A stamp of 18 characters followed by
/// zero bytes gets "0" added, one of 17 gets "00" (Exif writers that cut the seconds short).
std::optional<std::string> exifTimeStampFromData(const Bytes &data);
/// The wall clock that such bytes tell; none where they hold no stamp or no date.
std::optional<CivilFields> civilFromExifData(const Bytes &data);

/// Reads "yyyy:MM:dd HH:mm:ss" by position: digits only, a blank accepted as a leading zero, byte
/// 10 a blank or a colon. None when the fields are not a date.
std::optional<CivilFields> civilFromExifTimeStamp(std::string_view stamp);

/// True when a stamp cannot be read as a date: all zeros with its colons in place, blanks, and any
/// other stamp that is no date. Such a stamp marks an empty tag.
bool isValidZeroStamp(std::string_view stamp);

/// True for a stamp that is no date and yet holds a digit other than 0: it may be somebody's data,
/// so it is never overwritten unasked.
bool isUnreadableStamp(std::string_view stamp);

/// Bytes of a zone stamp "+02:00" (six characters, a seventh zero byte allowed) as text, or none.
std::optional<std::string> exifOffsetFromData(const Bytes &data);

/// Seconds east of UTC of "+02:00"; none beyond ±18:00 or with minutes above 59.
std::optional<std::int32_t> secondsFromExifOffset(std::string_view offset);

/// Form checks on raw bytes, as the walk makes them before a value is reported (see the bodies).
bool verifyDateData(std::string_view data);
bool verifyOffsetData(std::string_view data);
bool verifyGpsDateStampData(std::string_view data);

} // namespace chronomender
