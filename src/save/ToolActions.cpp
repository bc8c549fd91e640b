// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolActions.h"

namespace chronomender {

std::optional<ToolAction> completeFullExifDateTags(const MySinglePic &, const PlanContext &) {
    return std::nullopt;
}

ToolAction extendShortXmpDateTags(const std::vector<SupportStamp> &) {
    return {ToolErrorType::ExtendShortXmp, {}};
}

} // namespace chronomender
