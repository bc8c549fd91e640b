// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PatchPlan.h"
#include "XmpPlan.h"

namespace chronomender {

// What the external tool is asked to do, as argument lines. Pure functions.

/// Adds the missing date tags of an item with `shouldAddExifDateTimeTags`, each with its zone
/// stamp, in the item's target zone. Does nothing to a file that has one of these tags where our
/// reader does not see it. None when a date has no text of its own.
std::optional<ToolAction> completeFullExifDateTags(const MySinglePic &pic,
                                                   const PlanContext &context);
/// Writes short XMP stamps in their long form.
ToolAction extendShortXmpDateTags(const std::vector<SupportStamp> &stamps);

} // namespace chronomender
