// SPDX-License-Identifier: GPL-3.0-or-later
#include "TimelineGeometry.h"

namespace chronomender {

StripRect TimelineGeometry::thumbRectCalculatedAtIndex(std::int64_t, std::int64_t, float) const {
    return {};
}

} // namespace chronomender
