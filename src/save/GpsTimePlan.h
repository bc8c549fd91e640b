// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "Patch.h"

#include <vector>

namespace chronomender {

/// Patches of the GPS stamps so that they tell `newDate`, appended to `patches`. The rationals of
/// the time keep their denominators and the fraction of the second. True when both the time and the
/// date of the file tell it then; false, with nothing appended, when one of them cannot be written
/// in place: too little room, a zero denominator, a fraction in the hours or minutes.
bool planGpsStamps(const MySinglePic &pic, Date newDate, std::vector<ValuePatch> &patches);

} // namespace chronomender
