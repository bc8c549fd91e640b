// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneChange.h"

namespace chronomender {

std::size_t assignZones(MySingleFolder &, const ZoneWish &, const Zones &, int) {
    return 0;
}

std::size_t assignZones(const std::vector<MySinglePicPtr> &, const ZoneWish &, const Zones &, int) {
    return 0;
}

} // namespace chronomender
