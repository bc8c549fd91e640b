// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpPlan.h"

#include "XmpRewrite.h"
#include "XmpStampConversions.h"
#include "XmpValues.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

constexpr std::size_t kSecondsAt = 17; ///< in "2024-05-06T07:08:09"

/// What a stamp becomes, without its patches.
StampPlan planFor(const XmpStamp &stamp, const std::optional<RewrittenStamp> &made,
                  PlanObstacle &obstacle) {
    StampPlan plan;
    obstacle = PlanObstacle::None;
    if (made) {
        plan.readBack = made->readBack;
        plan.isAmbiguous = made->isAmbiguous;
        plan.zoneChange = made->zoneChange;
    }
    const bool isChange = !made || made->text != stamp.value.data;
    if (isChange && !stamp.value.hasRoomFor(stamp.value.data.size()))
        obstacle = PlanObstacle::NoRoom;
    else if (!made || !(made->isWanted || made->isAmbiguous))
        obstacle = PlanObstacle::UnreadableBack;
    if (obstacle != PlanObstacle::None)
        plan.result = SlotResult::Refused;
    else if (isChange)
        plan.result = SlotResult::WrittenInPlace;
    return plan;
}

void appendPatch(const XmpStamp &stamp, std::string_view after, std::size_t at, std::size_t length,
                 std::vector<ValuePatch> &patches) {
    const std::string_view before = stamp.value.data;
    patches.push_back({&stamp.value, Patch(stamp.value.offset + at, before.substr(at, length),
                                           after.substr(at, length))});
}

bool isSlotToBeWritten(const MySinglePic &pic, StampSlot slot) {
    return isCleanDate(pic.slots.*description(slot).oldDate) &&
           isCleanDate(pic.slots.*description(slot).newDate);
}

Date wantedDate(const MySinglePic &pic, StampSlot slot) {
    return *(pic.slots.*description(slot).newDate);
}

/// Stamps of one packet can have offsets of their own, and each keeps its own where all are to.
absl::TimeZone zoneFor(const MySinglePic &pic, const XmpStamp &stamp, const PlanContext &context) {
    const ZoneSides sides(context.folder);
    const ZoneChoice *choice = choiceForPic(pic, sides.target);
    if (!choice || !choice->is(ZoneChoice::Kind::Own))
        return targetTimeZoneForPic(pic, sides, context.zones).rules;
    const auto own = ownZone(stamp);
    return own ? *own : sourceTimeZoneForPic(pic, sides, context.zones).rules;
}

/// The stamps of a slot in the packet: which the slot is read from, and the other one. Each is null
/// where there is none or it does not take part.
struct SlotStamps {
    const XmpStamp *first = nullptr;
    const XmpStamp *twin = nullptr;
};
struct SlotProperties {
    StampSlot slot;
    XmpProperty first, second;
};
constexpr std::array kSlotProperties{
    SlotProperties{StampSlot::Original, XmpProperty::PhotoshopDateCreated,
                   XmpProperty::ExifDateTimeOriginal},
    SlotProperties{StampSlot::Digitized, XmpProperty::XmpCreateDate,
                   XmpProperty::ExifDateTimeDigitized},
    SlotProperties{StampSlot::Modification, XmpProperty::XmpModifyDate, XmpProperty::TiffDateTime},
};

SlotStamps stampsOf(const MySinglePic &pic, StampSlot slot, bool isInStep) {
    const XmpDateInfos &packet = pic.singlePicAttributes.xmpDateInfos;
    const auto &names = *std::ranges::find(kSlotProperties, slot, &SlotProperties::slot);
    const XmpStamp *first = packet.find(names.first), *second = packet.find(names.second);
    if (!first)
        return {second, nullptr};
    return {first, isInStep ? second : nullptr};
}

/// The long form of a short stamp whose date has seconds; none where the stamp can say the date, or
/// is not to be widened.
std::optional<RewrittenStamp> widened(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                                      const absl::TimeZone &zone, const PlanContext &context) {
    const bool isAsked = (stamp.subtype & kXmpWithoutSeconds) && pic.isSlotXmp(slot) &&
                         context.shouldSupportXmpSave && pic.isThisTimeUnsaved();
    if (!isAsked)
        return std::nullopt;
    auto made =
        rewrittenStamp(stamp, wantedDate(pic, slot), zone, stamp.subtype & ~kXmpWithoutSeconds);
    const bool isNeeded = made && made->text.substr(kSecondsAt, 2) != "00";
    return isNeeded ? made : std::nullopt;
}

/// A question to the user is asked of all stamps of the slot together.
void takeQuestions(const StampPlan &twin, StampPlan &plan) {
    plan.isAmbiguous = plan.isAmbiguous || twin.isAmbiguous;
    if (twin.zoneChange.empty() || twin.zoneChange == plan.zoneChange)
        return;
    plan.zoneChange += (plan.zoneChange.empty() ? "" : ", ") + twin.zoneChange;
}

/// The slot's date is in a tag of its own without a zone, and no other zone was asked for.
bool isBesideWallClock(const MySinglePic &pic, StampSlot slot, const PlanContext &context) {
    const ZoneChoice *target = choiceForPic(pic, ZoneSides(context.folder).target);
    const bool isZoneAskedFor =
        hasAssignedTargetZone(pic, context.folder) && !target->is(ZoneChoice::Kind::Own);
    return pic.stamp(slot) && !pic.isSlotXmp(slot) && !pic.zoneStamp(slot) && !isZoneAskedFor;
}

/// A stamp that only goes along; without an obstacle its patches stand in `patches`.
StampPlan planCompanion(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                        const PlanContext &context, std::vector<ValuePatch> &patches) {
    PlanObstacle obstacle{};
    Date date = wantedDate(pic, slot);
    absl::TimeZone zone = zoneFor(pic, stamp, context);
    if (const auto own = ownZone(stamp); own && isBesideWallClock(pic, slot, context)) {
        date = dateBesideWallClock(
            date, targetZoneForSlot(pic, slot, context.folder, context.zones).rules, *own);
        zone = *own;
    }
    const StampPlan plan = planXmpStampTo(stamp, date, zone, patches, obstacle);
    return obstacle == PlanObstacle::None ? plan : StampPlan{};
}

StampPlan planSource(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                     const PlanContext &context, std::vector<ValuePatch> &patches,
                     PlanObstacle &obstacle) {
    const absl::TimeZone zone = zoneFor(pic, stamp, context);
    const auto longer = widened(pic, slot, stamp, zone, context);
    if (!longer)
        return planXmpStampTo(stamp, wantedDate(pic, slot), zone, patches, obstacle);
    StampPlan plan = planFor(stamp, longer, obstacle);
    if (plan.result == SlotResult::WrittenInPlace)
        plan.result = SlotResult::WrittenByTool;
    return plan;
}

} // namespace

StampPlan planXmpStampTo(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                         std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    const auto made = rewrittenStamp(stamp, date, zone, stamp.subtype);
    StampPlan plan = planFor(stamp, made, obstacle);
    if (obstacle != PlanObstacle::None)
        return plan;
    const std::string_view after = made->text;
    appendPatch(stamp, after, 0, xmpClockLength(stamp.subtype), patches);
    if (const std::size_t length = xmpOffsetLength(stamp))
        appendPatch(stamp, after, after.size() - length, length, patches);
    return plan;
}

StampPlan planXmpStamps(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                        std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    obstacle = PlanObstacle::None;
    const bool isFollower = slot == StampSlot::Modification && pic.xmp.hasModiXmp;
    StampPlan plan;
    if (!isSlotToBeWritten(pic, slot) || !(pic.isSlotXmp(slot) || isFollower))
        return plan;
    const SlotStamps stamps = stampsOf(pic, slot, context.syncXMPDataOnSave);
    if (!stamps.first)
        return plan;
    plan = isFollower ? planCompanion(pic, slot, *stamps.first, context, patches)
                      : planSource(pic, slot, *stamps.first, context, patches, obstacle);
    if (obstacle == PlanObstacle::None && stamps.twin)
        takeQuestions(planCompanion(pic, slot, *stamps.twin, context, patches), plan);
    if (hasAssignedTargetZone(pic, context.folder))
        plan.zoneChange.clear();
    return plan;
}

OptionalDate planXmpGpsStamp(const MySinglePic &pic, Date date, const PlanContext &context,
                             std::vector<ValuePatch> &patches) {
    const XmpStamp *stamp = pic.singlePicAttributes.xmpDateInfos.xmpGpsDict();
    if (!stamp)
        return std::nullopt;
    const auto own = hasAssignedTargetZone(pic, context.folder) ? std::nullopt : ownZone(*stamp);
    const std::size_t count = patches.size();
    PlanObstacle obstacle{};
    const StampPlan plan =
        planXmpStampTo(*stamp, date, own ? *own : zoneFor(pic, *stamp, context), patches, obstacle);
    if (obstacle == PlanObstacle::None && !plan.isAmbiguous)
        return plan.readBack;
    patches.erase(patches.begin() + static_cast<std::ptrdiff_t>(count), patches.end());
    return std::nullopt;
}

std::vector<SupportStamp> supportStamps(const MySinglePic &pic, const PlanContext &context) {
    std::vector<SupportStamp> stamps;
    for (const StampSlot slot : stampSlots) {
        const XmpStamp *stamp = pic.xmpStamp(slot);
        if (!stamp || !isSlotToBeWritten(pic, slot))
            continue;
        const auto longer = widened(pic, slot, *stamp, zoneFor(pic, *stamp, context), context);
        PlanObstacle obstacle{};
        if (longer && planFor(*stamp, longer, obstacle).result != SlotResult::Refused)
            stamps.push_back({stamp->property, longer->text});
    }
    return stamps;
}

} // namespace chronomender
