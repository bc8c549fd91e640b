// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateAlerts.h"

namespace chronomender {

std::vector<DateAlert> dateAlerts(const MySinglePic &, const MySingleFolder &, const Zones &) {
    return {};
}

} // namespace chronomender
