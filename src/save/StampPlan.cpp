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

constexpr std::size_t kSeparatorPosition = 10; ///< between date and time

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

/// Most stamps have one way only to be written; these have two.
bool hasBlankForZero(std::string_view stamp) {
    const std::size_t blank = stamp.find(' ');
    return blank != stamp.npos &&
           (blank != kSeparatorPosition || stamp.find(' ', blank + 1) != stamp.npos);
}
bool isZeroOffset(std::string_view offset) {
    return offset.substr(1, 5) == "00:00";
}

/// What says the wanted already stays as somebody wrote it: a blank for a leading zero.
void keepStampSaidAlready(const Bytes &present, Bytes &built) {
    if (hasBlankForZero(present) && civilFromExifData(present) == civilFromExifData(built))
        built = present;
}

/// The same for a zone stamp: "-00:00" is "+00:00".
void keepOffsetSaidAlready(const Bytes &present, Bytes &built) {
    if (isZeroOffset(present) && isZeroOffset(built))
        built = present;
}

std::optional<BuiltStamp> build(Date date, const LocatedBytes &stamp, const LocatedBytes *offset,
                                const absl::TimeZone &zone) {
    BuiltStamp built;
    if (offset) {
        auto both = exifWithOffsetDatasFromDate(date, zone);
        if (!both)
            return std::nullopt;
        built.stamp = std::move(both->stamp);
        keepOffsetSaidAlready(offset->data, both->offset);
        built.offset = std::move(both->offset);
    } else if (auto alone = exifDataFromDate(date, zone)) {
        built.stamp = *std::move(alone);
    } else {
        return std::nullopt;
    }
    keepStampSaidAlready(stamp.data, built.stamp);
    built.stamp = keepingSeparator(std::move(built.stamp), stamp.data);
    return built;
}

std::string_view firstPart(std::string_view bytes, std::size_t length) {
    return bytes.substr(0, length);
}

bool differs(const LocatedBytes &value, const Bytes &built, std::size_t length) {
    return firstPart(value.data, length) != firstPart(built, length);
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
    if (!differs(offset, built, kZoneStampLength))
        return {};
    const auto before = exifOffsetFromData(offset.data);
    const auto after = exifOffsetFromData(built);
    if (!before || !after || secondsFromExifOffset(*before) == secondsFromExifOffset(*after))
        return {};
    return *before + " → " + *after;
}

/// What a tag to be added holds meanwhile, if it exists and is empty, is not patched.
bool isToBeWritten(const MySinglePic &pic, StampSlot slot) {
    const auto &dates = description(slot);
    return pic.stamp(slot) && pic.slots.*dates.oldDate && !pic.isSlotXmp(slot) &&
           !isTagToBeAdded(pic, slot) && isCleanDate(pic.slots.*dates.newDate);
}

std::string unreadableStamp(const MySinglePic &pic, StampSlot slot) {
    const LocatedBytes *stamp = pic.stamp(slot);
    const std::string_view present = stamp ? firstPart(stamp->data, kStampLength) : "";
    return isUnreadableStamp(present) ? std::string(present) : std::string();
}

/// A slot with a date has it from its stamp, except that items whose tags are all empty get theirs
/// from elsewhere.
bool mayBeUnreadable(const MySinglePic &pic, StampSlot slot) {
    return isNullerFile(pic.spType) || !isCleanDate(pic.slots.*description(slot).oldDate);
}

/// The part of the plan that tells what the built stamp would say and do.
bool describeStamp(const MySinglePic &pic, StampSlot slot, const BuiltStamp &built,
                   const absl::TimeZone &zone, StampPlan &plan) {
    const Date wanted = *(pic.slots.*description(slot).newDate);
    plan.readBack = dateFromExifData(built.stamp, built.offset ? &*built.offset : nullptr, zone);
    const bool readsBack = plan.readBack == cleanDate(wanted);
    plan.isAmbiguous = !readsBack && hasDSTAmbiguityForDate(pic, wanted, exportDate(slot), zone,
                                                            DSTPreFilter::Off);
    if (mayBeUnreadable(pic, slot))
        plan.overwrittenUnreadable = unreadableStamp(pic, slot);
    return readsBack;
}

} // namespace

bool isTagToBeAdded(const MySinglePic &pic, StampSlot slot) {
    return pic.save.shouldAddExifDateTimeTags && (pic.save.tagAddType & bit(slot));
}

StampPlan planAddedTag(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                       PlanObstacle &obstacle) {
    StampPlan plan;
    obstacle = PlanObstacle::None;
    const OptionalDate &wanted = pic.slots.*description(slot).newDate;
    if (!isCleanDate(wanted))
        return plan;
    const Zone zone = targetZoneForSlot(pic, slot, context.folder, context.zones);
    const auto built = exifWithOffsetDatasFromDate(*wanted, zone.rules);
    if (built)
        plan.readBack = dateFromExifData(built->stamp, &built->offset, zone.rules);
    if (!built || plan.readBack != cleanDate(wanted)) {
        plan.result = SlotResult::Refused;
        obstacle = PlanObstacle::UnreadableBack;
        return plan;
    }
    plan.result = SlotResult::WrittenByTool;
    plan.overwrittenUnreadable = unreadableStamp(pic, slot);
    const LocatedBytes *offset = pic.zoneStamp(slot);
    if (offset && !hasAssignedTargetZone(pic, context.folder))
        plan.zoneChange = zoneChange(*offset, built->offset);
    return plan;
}

StampPlan planStamp(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                    std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
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
    if (!readsBack && !plan.isAmbiguous)
        obstacle = PlanObstacle::UnreadableBack;
    if (obstacle == PlanObstacle::None && !planValues(stamp, offset, *built, patches))
        obstacle = PlanObstacle::NoRoom;
    const bool isChange = differs(stamp, built->stamp, kStampLength) ||
                          (offset && differs(*offset, *built->offset, kZoneStampLength));
    if (obstacle != PlanObstacle::None)
        plan.result = SlotResult::Refused;
    else if (isChange)
        plan.result = SlotResult::WrittenInPlace;
    return plan;
}

} // namespace chronomender
