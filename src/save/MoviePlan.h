// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PatchPlan.h"

namespace chronomender {

/// Plans the values of a movie that hold the date of a slot and appends their patches: for the
/// original one the RIFF date, or the metadata date and the header's creation time; for the
/// modification one the header's. A movie has no digitized date. `obstacle` says what keeps the
/// slot from being written.
StampPlan planMovieStamp(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                         std::vector<ValuePatch> &patches, PlanObstacle &obstacle);

} // namespace chronomender
