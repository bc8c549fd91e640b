// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

#include <cstdint>
#include <optional>

namespace chronomender {

// What an item says about its date more than once: a zone in the file and the zone assumed for it,
// the two files of a group, a GPS time. Main thread, or a worker on items that nobody sees yet.

/// Why an hour between a file's zone and the assumed one says nothing about the zones.
enum class DstSpecialCase : std::uint8_t {
    None = 0,
    SameClock = 1,   ///< both instants show the same time there: it happens twice
    SkippedTime = 2, ///< the time in the file does not exist there
};

/// Seconds by which the zone in the file disagrees with the assumed one; 0 when they agree, nothing
/// can be compared, or a special case explains the hour between them.
///
///     "2024-06-01T12:00:00+09:00" in Berlin    -25200: Tokyo's noon comes seven hours earlier
std::int64_t checkMDTADateWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       DstSpecialCase *specialCase = nullptr);
std::int64_t checkEXOFTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       DstSpecialCase *specialCase = nullptr);
std::int64_t checkXmpTZTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                        DstSpecialCase *specialCase = nullptr);

/// The zone that the file tells for the item's date, and what came of comparing it.
struct ZoneDisagreement {
    std::int32_t secondsEastOfUtc = 0; ///< of the zone in the file
    std::int64_t seconds = 0;          ///< as the three functions above give it, never 0
};
std::optional<ZoneDisagreement> zoneDisagreement(const MySinglePic &pic,
                                                 const absl::TimeZone &zone);

/// Stores in `majorDateDifferenceType` whether the two sides of the item's group deviate. True when
/// they lie apart and one side alone is a wall clock without a zone.
bool validateGroupDeviations(MySinglePic &pic);

/// Stores major and minor differences, divergence and ambiguity of the item under a source zone.
/// True when a major or minor difference came or went.
bool validateDateDifferencesUsingTimeZone(MySinglePic &pic, const absl::TimeZone &zone);
/// The same under the item's own source zone.
bool validateDateDifferences(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);
/// The lighter check for movies during import: the zone in the file, divergence and ambiguity.
void validateMovieDatesOnImport(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);

/// The zones disagree, or only one side of the group is without one.
bool hasMajorDateDifference(const MySinglePic &pic);

} // namespace chronomender
