// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyDroppedFolders.h"
#include "Zones.h"

#include <cstddef>

namespace chronomender::bench {

/// What of a trip's items a filter would find.
struct TripCounts {
    std::size_t alerts = 0, namesWith7 = 0;
};

/// A trip in memory, without files: 20 folders of two cameras that shot side by side for days,
/// bursts within a second, both cameras at the same second, some raws with their JPEG, corrected
/// clocks and zones. The first folder holds a tenth of the items. The system's zone becomes
/// Europe/Berlin.
TripCounts addTrip(MyDroppedFolders &folders, Zones &zones, std::size_t itemCount);

} // namespace chronomender::bench
