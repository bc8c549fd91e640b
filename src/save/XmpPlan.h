// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PatchPlan.h"

#include <string>
#include <utility>
#include <vector>

namespace chronomender {

/// Patches of one XMP stamp so that it tells `date` in its own form: one in UTC stays in UTC, one
/// with an offset tells that of `zone` in the old width, a local one the wall clock of `zone`. What
/// stands between the date and the offset, such as a fraction, stays. Appends up to two patches
/// (also those that change no byte); the answer says what the stamp reads as then and whether its
/// offset is another one, and `obstacle` what keeps it from being written.
StampPlan planXmpStampTo(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                         std::vector<ValuePatch> &patches, PlanObstacle &obstacle);

/// Plans the stamps of a slot in the item's packet: the one that the slot is read from, and its
/// twin when XMP is kept in step. A slot of a tag of its own keeps a modification stamp of the
/// packet in step with it. Does nothing for a slot without XMP. A stamp that only goes along and
/// cannot be written stays as it is, without an obstacle.
StampPlan planXmpStamps(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                        std::vector<ValuePatch> &patches, PlanObstacle &obstacle);

/// Patches of the packet's GPS time so that it tells `date`, appended to `patches`; an offset of
/// its own stays unless a zone was assigned. The instant that it tells then; none, with nothing
/// appended, when it cannot be written.
OptionalDate planXmpGpsStamp(const MySinglePic &pic, Date date, const PlanContext &context,
                             std::vector<ValuePatch> &patches);

/// A stamp without seconds that must be widened, as the whole text that it is to become.
struct SupportStamp {
    XmpProperty property{};
    std::string text;
};
/// The short stamps of the item whose new dates have seconds; empty when all can be written in
/// place, or when widening is switched off.
std::vector<SupportStamp> supportStamps(const MySinglePic &pic, const PlanContext &context);

} // namespace chronomender
