// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "StampSyntax.h"
#include "Zones.h"

#include <cstdint>
#include <vector>

namespace chronomender {

/// Why an item's date deserves a second look, most serious first.
enum class DateAlertKind : std::uint8_t {
    RepeatedTime,    ///< its stamp means two instants in the source zone
    SkippedTime,     ///< its stamp never occurs in the source zone
    OtherThanInFile, ///< its date does not turn back into its stamp, for no such reason
    CannotBeWritten, ///< in the target zone its corrected date would be read as another instant
    ZoneDisagrees,   ///< the zone in the file is not the one that was said of it
    GroupApart,      ///< the two files of the group were taken at different times
    GpsApart,        ///< the GPS time of the picture tells another time
};

/// One alert with what its words need; fields that a kind does not name stay empty.
struct DateAlert {
    DateAlertKind kind{};
    Date date;                  ///< the date in question
    Zone zone;                  ///< the zone in which `date` is to be told
    CivilFields clock;          ///< the wall clock in question, as the file has it or would get it
    bool isAlternative = false; ///< RepeatedTime: read as the earlier of the two
    /// ZoneDisagrees: the file's zone is so far ahead of the assumed one. GroupApart: the dependent
    /// is so much later than the master. GpsApart: the date is so much later than the GPS time.
    absl::Duration difference;
    std::int32_t secondsEastOfUtc = 0; ///< ZoneDisagrees: the zone in the file
    bool isOfDependent = false;        ///< it is about the dependent of the group
};

/// The alerts of an item and, where it has more to say, of its dependent; empty for most items.
///
/// A zone in the file is held against the assumed one only where somebody said the latter. Cameras
/// that write their zone are right about it on every trip, and the system's zone says nothing
/// about where a photo was taken.
std::vector<DateAlert> dateAlerts(const MySinglePic &pic, const MySingleFolder &folder,
                                  const Zones &zones);

} // namespace chronomender
