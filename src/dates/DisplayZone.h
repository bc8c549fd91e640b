// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "ZoneSides.h"
#include "Zones.h"

namespace chronomender {

/// The zone in which an item's date is shown, and told in its name: that in which its source slot
/// is written, or without one the item's target zone.
absl::TimeZone displayZone(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones);

} // namespace chronomender
