// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PatchPlan.h"

namespace chronomender {

/// Plans one stamp with its zone stamp and appends its patches (also those that change no byte, so
/// that collisions are seen). `obstacle` says what keeps the slot from being written.
StampPlan planStamp(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                    std::vector<ValuePatch> &patches, PlanObstacle &obstacle);

/// The tag of the slot is among those that a save is to add.
bool isTagToBeAdded(const MySinglePic &pic, StampSlot slot);
/// A tag that the external tool adds together with its zone stamp: no patch. It reads back as the
/// whole second.
StampPlan planAddedTag(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                       PlanObstacle &obstacle);

} // namespace chronomender
