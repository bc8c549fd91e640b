// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieClock.h"

#include "ZoneLookup.h"

namespace chronomender {

std::size_t setQuicktimeMVHDTimezoneCorrection(MySingleFolder &folder, bool isLocal,
                                               const Zones &zones, int dateComparisonThresold) {
    if (folder.isQuicktimeMVHDTimezoneCorrectionEnabled == isLocal)
        return 0;
    folder.isQuicktimeMVHDTimezoneCorrectionEnabled = isLocal;
    return updateAllDatesAfterUpdatingTimezone(folder.sfPicDetails_fullArray, folder, zones,
                                               dateComparisonThresold);
}

} // namespace chronomender
