// SPDX-License-Identifier: GPL-3.0-or-later
#include "DisplayZone.h"

#include "SourceSlot.h"
#include "ZoneLookup.h"

namespace chronomender {

absl::TimeZone displayZone(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones) {
    const auto slot = sourceSlot(pic.spType);
    return slot ? targetZoneForSlot(pic, *slot, sides, zones).rules
                : targetTimeZoneForPic(pic, sides, zones).rules;
}

} // namespace chronomender
