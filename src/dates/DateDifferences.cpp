// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDifferences.h"

#include "DaylightSavingChecks.h"

namespace chronomender {

std::int64_t checkMDTADateWithTimeZone(const MySinglePic &, const absl::TimeZone &, int *) {
    return 0;
}
std::int64_t checkEXOFTimeWithTimeZone(const MySinglePic &, const absl::TimeZone &, int *) {
    return 0;
}
std::int64_t checkXmpTZTimeWithTimeZone(const MySinglePic &, const absl::TimeZone &, int *) {
    return 0;
}

bool validateGroupDeviations(MySinglePic &) {
    return false;
}

bool validateDateDifferencesUsingTimeZone(MySinglePic &pic, const absl::TimeZone &zone) {
    checkImportDivergencyAndAmbiguityUsingZone(pic, zone);
    return false;
}

bool validateDateDifferences(MySinglePic &, const MySingleFolder &, const Zones &) {
    return false;
}

void validateMovieDatesOnImport(MySinglePic &, const MySingleFolder &, const Zones &) {}

bool hasMajorDateDifference(const MySinglePic &) {
    return false;
}

} // namespace chronomender
