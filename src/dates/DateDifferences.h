// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

#include <cstdint>

namespace chronomender {

// What an item says about its date more than once: a zone in the file and the zone assumed for it,
// the two files of a group, a GPS time. Main thread, or a worker on items that nobody sees yet.

/// Seconds by which the zone in the file disagrees with the assumed one; 0 when they agree or
/// nothing can be compared. An hour next to a daylight-saving step says nothing: then the result is
/// 0 and `dstSpecialCase`, if given, tells the case (1 or 2).
std::int64_t checkMDTADateWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       int *dstSpecialCase = nullptr);
std::int64_t checkEXOFTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       int *dstSpecialCase = nullptr);
std::int64_t checkXmpTZTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                        int *dstSpecialCase = nullptr);

/// Sets bit 4 of `majorDateDifferenceType` for a group whose two dates lie apart or are harmonised.
/// True when they lie apart and only one side is a wall clock without a zone.
bool validateGroupDeviations(MySinglePic &pic);

/// Stores major and minor differences, divergence and ambiguity of the item under a source zone.
/// True when a major or minor difference came or went.
bool validateDateDifferencesUsingTimeZone(MySinglePic &pic, const absl::TimeZone &zone);
/// The same under the item's own source zone.
bool validateDateDifferences(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);
/// The lighter check for movies during import: the zone in the file, divergence and ambiguity.
void validateMovieDatesOnImport(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);

bool hasMajorDateDifference(const MySinglePic &pic);

} // namespace chronomender
