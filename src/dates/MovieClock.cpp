// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieClock.h"

#include "ZoneLookup.h"

#include <algorithm>

namespace chronomender {

std::size_t setQuicktimeMVHDTimezoneCorrection(MySingleFolder &folder, bool isLocal,
                                               const Zones &zones, int dateComparisonThresold) {
    if (folder.isQuicktimeMVHDTimezoneCorrectionEnabled == isLocal)
        return 0;
    folder.isQuicktimeMVHDTimezoneCorrectionEnabled = isLocal;
    const auto changed =
        std::ranges::count_if(folder.sfPicDetails_fullArray, [&](const MySinglePicPtr &pic) {
            return updateAllDatesAfterUpdatingTimezone(*pic, folder, zones, dateComparisonThresold);
        });
    return static_cast<std::size_t>(changed);
}

} // namespace chronomender
