// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

namespace chronomender {

/// Says what the header times of the folder's movies tell (the camera's own clock, or UTC as the
/// format has it) and reads them again from their recorded bytes, as a change of the source zone
/// does. The number of items that show another date now. Main thread.
std::size_t setQuicktimeMVHDTimezoneCorrection(MySingleFolder &folder, bool isLocal,
                                               const Zones &zones, int dateComparisonThresold);

} // namespace chronomender
