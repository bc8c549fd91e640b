// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpPlan.h"

namespace chronomender {

StampPlan planXmpStampTo(const XmpStamp &, Date, const absl::TimeZone &, std::vector<ValuePatch> &,
                         PlanObstacle &obstacle) {
    obstacle = PlanObstacle::UnreadableBack;
    return {};
}

StampPlan planXmpStamps(const MySinglePic &, StampSlot, const PlanContext &,
                        std::vector<ValuePatch> &, PlanObstacle &obstacle) {
    obstacle = PlanObstacle::UnreadableBack;
    return {};
}

std::vector<SupportStamp> supportStamps(const MySinglePic &, const PlanContext &) {
    return {};
}

} // namespace chronomender
