// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {

bool NewDateInputs::isSame(const OptionalDate &a, const OptionalDate &b) const {
    if (!a || !b)
        return false;
    if (isMarker(*a) || isMarker(*b))
        return *a == *b;
    return distance(*a, *b) <= threshold;
}

Date NewDateInputs::nowRule(Date candidate) const {
    if (options.nowDate < candidate)
        return candidate;
    return mode == CalculationMode::Save ? options.nowDate : InfiniteFuture();
}

} // namespace chronomender
