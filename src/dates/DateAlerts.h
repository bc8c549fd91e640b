// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

#include <cstdint>
#include <vector>

namespace chronomender {

/// Why an item's date deserves a second look.
enum class DateAlertKind : std::uint8_t {
    RepeatedTime,    ///< its stamp means two instants in the source zone
    SkippedTime,     ///< its stamp never occurs in the source zone
    CannotBeWritten, ///< in the target zone its corrected date would be read as another instant
    ZoneDisagrees,   ///< the zone in the file is not the one assumed for it
    GroupApart,      ///< the two files of the group were taken at different times
    GpsApart,        ///< the GPS time of the picture tells another time
};

/// One alert with what its words need; fields that a kind does not name stay empty.
struct DateAlert {
    DateAlertKind kind{};
    Date date;                  ///< the date in question
    Zone zone;                  ///< the zone in which `date` is to be told
    bool isAlternative = false; ///< RepeatedTime: read as the earlier of the two
    absl::Duration difference;  ///< ZoneDisagrees, GroupApart, GpsApart: how far apart
    bool isOfDependent = false; ///< it is about the dependent of the group
};

/// The alerts of an item and of its dependent, most serious first; empty for most items.
std::vector<DateAlert> dateAlerts(const MySinglePic &pic, const MySingleFolder &folder,
                                  const Zones &zones);

} // namespace chronomender
