// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampPlan.h"

#include "DaylightSavingChecks.h"
#include "ExifFormat.h"
#include "StampConversions.h"
#include "UnchangedProof.h"
#include "ZoneLookup.h"

#include <utility>

namespace chronomender {
namespace {

constexpr ExportDate exportDate(StampSlot slot) {
    return slot == StampSlot::Original    ? ExportDate::Original
           : slot == StampSlot::Digitized ? ExportDate::Digitized
                                          : ExportDate::Modification;
}

/// The bytes that a stamp and its zone stamp are to hold.
struct BuiltStamp {
    Bytes stamp;
    std::optional<Bytes> offset;
};

std::optional<std::int32_t> secondsOf(const Bytes &offset) {
    const auto text = exifOffsetFromData(offset);
    return text ? secondsFromExifOffset(*text) : std::nullopt;
}

std::optional<CivilFields> civilOf(const Bytes &stamp) {
    const auto text = exifTimeStampFromData(stamp);
    return text ? civilFromExifTimeStamp(*text) : std::nullopt;
}

/// What says the wanted already stays as somebody wrote it: a blank for a leading zero, "-00:00".
template<class Value>
Bytes unlessSaidAlready(const Bytes &present, Bytes built,
                        std::optional<Value> (*read)(const Bytes &)) {
    const auto said = read(present);
    return said && said == read(built) ? present : std::move(built);
}

std::optional<BuiltStamp> build(Date date, const LocatedBytes &stamp, const LocatedBytes *offset,
                                const absl::TimeZone &zone) {
    BuiltStamp built;
    if (offset) {
        auto both = exifWithOffsetDatasFromDate(date, zone);
        if (!both)
            return std::nullopt;
        built.stamp = std::move(both->stamp);
        built.offset = unlessSaidAlready(offset->data, std::move(both->offset), secondsOf);
    } else if (auto alone = exifDataFromDate(date, zone)) {
        built.stamp = *std::move(alone);
    } else {
        return std::nullopt;
    }
    built.stamp = keepingSeparator(unlessSaidAlready(stamp.data, std::move(built.stamp), civilOf),
                                   stamp.data);
    return built;
}

std::string_view firstPart(std::string_view bytes, std::size_t length) {
    return bytes.substr(0, length);
}

/// Patches one value; false where its field has no room for what would change.
bool planValue(const LocatedBytes &value, std::string_view after,
               std::vector<ValuePatch> &patches) {
    const std::string_view before = firstPart(value.data, after.size());
    const bool isPatchable = before.size() == after.size() && value.hasRoomFor(after.size());
    if (before != after && !isPatchable)
        return false;
    patches.push_back({&value, Patch(value.offset, before, after)});
    return true;
}

bool planValues(const LocatedBytes &stamp, const LocatedBytes *offset, const BuiltStamp &built,
                std::vector<ValuePatch> &patches) {
    const std::size_t count = patches.size();
    const bool hasRoom =
        planValue(stamp, firstPart(built.stamp, kStampLength), patches) &&
        (!offset || planValue(*offset, firstPart(*built.offset, kZoneStampLength), patches));
    if (!hasRoom)
        patches.erase(patches.begin() + static_cast<std::ptrdiff_t>(count), patches.end());
    return hasRoom;
}

std::string zoneChange(const LocatedBytes &offset, const Bytes &built) {
    const auto before = exifOffsetFromData(offset.data);
    const auto after = exifOffsetFromData(built);
    if (!before || !after || secondsFromExifOffset(*before) == secondsFromExifOffset(*after))
        return {};
    return *before + " → " + *after;
}

bool isToBeWritten(const MySinglePic &pic, StampSlot slot) {
    const auto &dates = description(slot);
    return pic.stamp(slot) && pic.slots.*dates.oldDate && !pic.isSlotXmp(slot) &&
           isCleanDate(pic.slots.*dates.newDate);
}

/// What keeps the stamp from being written, seen from what it would say and what was accepted.
PlanObstacle obstacleOf(const StampPlan &plan, bool readsBack, const Acceptance &acceptance) {
    if (!readsBack && !plan.isAmbiguous)
        return PlanObstacle::UnreadableBack;
    const bool isAccepted = (!plan.isAmbiguous || acceptance.ambiguousStamp) &&
                            (plan.overwrittenUnreadable.empty() || acceptance.unreadableStamp) &&
                            (plan.zoneChange.empty() || acceptance.zoneStampRewritten);
    return isAccepted ? PlanObstacle::None : PlanObstacle::NotAccepted;
}

/// The part of the plan that tells what the built stamp would say and do.
bool describeStamp(const MySinglePic &pic, StampSlot slot, const BuiltStamp &built,
                   const absl::TimeZone &zone, StampPlan &plan) {
    const Date wanted = *(pic.slots.*description(slot).newDate);
    plan.readBack = dateFromExifData(built.stamp, built.offset ? &*built.offset : nullptr, zone);
    const bool readsBack = plan.readBack == cleanDate(wanted);
    plan.isAmbiguous = !readsBack && hasDSTAmbiguityForDate(pic, wanted, exportDate(slot), zone,
                                                            DSTPreFilter::Off);
    const std::string_view present = firstPart(pic.stamp(slot)->data, kStampLength);
    if (isUnreadableStamp(present))
        plan.overwrittenUnreadable = present;
    return readsBack;
}

} // namespace

StampPlan planStamp(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                    const Acceptance &acceptance, std::vector<ValuePatch> &patches,
                    PlanObstacle &obstacle) {
    StampPlan plan;
    obstacle = PlanObstacle::None;
    if (!isToBeWritten(pic, slot))
        return plan;
    const LocatedBytes &stamp = *pic.stamp(slot);
    const LocatedBytes *offset = pic.zoneStamp(slot);
    const Zone zone = targetZoneForSlot(pic, slot, context.folder, context.zones);
    const Date wanted = *(pic.slots.*description(slot).newDate);
    const auto built = build(wanted, stamp, offset, zone.rules);
    if (!built) {
        plan.result = SlotResult::Refused;
        obstacle = PlanObstacle::UnreadableBack;
        return plan;
    }
    const bool readsBack = describeStamp(pic, slot, *built, zone.rules, plan);
    if (offset && !hasAssignedTargetZone(pic, context.folder))
        plan.zoneChange = zoneChange(*offset, *built->offset);
    obstacle = obstacleOf(plan, readsBack, acceptance);
    if (obstacle == PlanObstacle::None && !planValues(stamp, offset, *built, patches))
        obstacle = PlanObstacle::NoRoom;
    const bool isChange =
        built->stamp != stamp.data || (offset && built->offset != std::optional(offset->data));
    if (obstacle != PlanObstacle::None)
        plan.result = SlotResult::Refused;
    else if (isChange)
        plan.result = SlotResult::WrittenInPlace;
    return plan;
}

} // namespace chronomender
