// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

#include "IsoStamp.h"
#include "StampConversions.h"
#include "StampSyntax.h"
#include "XmpStampConversions.h"

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

const ZoneChoice *ownChoiceOf(const MySinglePic &master, const ZoneSide &side) {
    if (const ZoneChoice *own = side.ownChoice(master.sessionUniqueId))
        return own;
    const MySinglePicPtr &dependent = master.group.bundleDependentImage;
    return dependent ? side.ownChoice(dependent->sessionUniqueId) : nullptr;
}

/// What holds for the item among the target choices, with the folder-wide marker resolved. Null
/// means the system's zone.
const ZoneChoice *targetChoiceForPic(const MySinglePic &pic, const ZoneSides &sides) {
    const ZoneChoice *choice = choiceForPic(pic, sides.target);
    const bool followsFolder = choice && choice->is(Kind::UnchangedLeftFolder);
    return followsFolder ? sides.source.folderDefault() : choice;
}

/// The zone that a target choice names; null where it is the item's source zone.
const Zone *zoneOfTargetChoice(const ZoneChoice *choice, const Zones &zones) {
    if (!choice || choice->is(Kind::System))
        return &zones.systemZone();
    return choice->zone() ? &*choice->zone() : nullptr;
}

/// The fixed offset that a stamp tells.
std::optional<Zone> fixedZone(const std::optional<std::int32_t> &seconds) {
    const auto text = seconds ? exifOffsetDataFromSeconds(*seconds) : std::nullopt;
    const auto offset = text ? exifOffsetFromData(*text) : std::nullopt;
    return offset ? std::optional(Zone{*offset, absl::FixedTimeZone(*seconds)}) : std::nullopt;
}

/// What a movie's metadata date tells of its zone.
std::optional<IsoStamp> metaDateOf(const MySinglePic &pic) {
    const auto &date = pic.singlePicAttributes.qtMetaDate;
    return date ? readIsoStamp(date->data) : std::nullopt;
}

std::optional<Zone> ownZoneOfMetaDate(const MySinglePic &pic) {
    const auto stamp = metaDateOf(pic);
    return stamp ? fixedZone(stamp->secondsEastOfUtc) : std::nullopt;
}

bool isMetaDate(const MySinglePic &pic, StampSlot slot) {
    return pic.spType == SpTypeMovieMdta && slot == StampSlot::Original;
}

/// The fixed offset that a slot's own zone stamp tells, or its XMP stamp or metadata date.
std::optional<Zone> ownZoneOfSlot(const MySinglePic &pic, StampSlot slot) {
    if (isMetaDate(pic, slot))
        return ownZoneOfMetaDate(pic);
    const XmpStamp *fromXmp = pic.xmpStamp(slot);
    if (fromXmp && !pic.stamp(slot))
        return fixedZone(secondsFromXmpStamp(fromXmp));
    const LocatedBytes *zoneStamp = pic.zoneStamp(slot);
    const auto text = zoneStamp ? exifOffsetFromData(zoneStamp->data) : std::nullopt;
    const auto seconds = text ? secondsFromExifOffset(*text) : std::nullopt;
    return seconds ? std::optional(Zone{*text, absl::FixedTimeZone(*seconds)}) : std::nullopt;
}

} // namespace

const ZoneChoice *choiceForPicIgnoringDefault(const MySinglePic &pic, ZoneSide side) {
    if (!side.hasItems())
        return nullptr;
    const MySinglePicPtr master = pic.bundleMasterImage();
    return ownChoiceOf(master ? *master : pic, side);
}

const ZoneChoice *choiceForPic(const MySinglePic &pic, ZoneSide side) {
    const ZoneChoice *own = choiceForPicIgnoringDefault(pic, side);
    return own ? own : side.folderDefault();
}

const Zone &sourceTimeZoneForPic(const MySinglePic &pic, const ZoneSides &sides,
                                 const Zones &zones) {
    const ZoneChoice *choice = choiceForPic(pic, sides.source);
    return choice && choice->zone() ? *choice->zone() : zones.systemZone();
}

const Zone &targetTimeZoneForPic(const MySinglePic &pic, const ZoneSides &sides,
                                 const Zones &zones) {
    const Zone *named = zoneOfTargetChoice(targetChoiceForPic(pic, sides), zones);
    return named ? *named : sourceTimeZoneForPic(pic, sides, zones);
}

const Zone &targetTimeZoneForPicWithKnownSourceZone(const MySinglePic &pic, const ZoneSides &sides,
                                                    const Zone &sourceZone, const Zones &zones) {
    const Zone *named = zoneOfTargetChoice(targetChoiceForPic(pic, sides), zones);
    return named ? *named : sourceZone;
}

Zone sourceZoneForSlot(const MySinglePic &pic, StampSlot slot, const ZoneSides &sides,
                       const Zones &zones) {
    auto own = ownZoneOfSlot(pic, slot);
    return own ? *std::move(own) : sourceTimeZoneForPic(pic, sides, zones);
}

Zone targetZoneForSlot(const MySinglePic &pic, StampSlot slot, const ZoneSides &sides,
                       const Zones &zones) {
    if (isMetaDate(pic, slot))
        return targetZoneForMetaDate(pic, sides, zones);
    const ZoneChoice *choice = targetChoiceForPic(pic, sides);
    if (choice && choice->is(Kind::Own))
        return sourceZoneForSlot(pic, slot, sides, zones);
    return targetTimeZoneForPic(pic, sides, zones);
}

Zone targetZoneForMetaDate(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones) {
    const auto stamp = metaDateOf(pic);
    if (stamp && stamp->form.zone == IsoZone::Letter)
        return Zones::utc();
    const ZoneChoice *choice = targetChoiceForPic(pic, sides);
    auto own = choice && choice->is(Kind::Own) ? ownZoneOfMetaDate(pic) : std::nullopt;
    return own ? *std::move(own) : targetTimeZoneForPic(pic, sides, zones);
}

bool hasAssignedTargetZone(const MySinglePic &pic, const ZoneSides &sides) {
    const ZoneChoice *choice = choiceForPic(pic, sides.target);
    return choice && !choice->is(Kind::UnchangedLeft) && !choice->is(Kind::UnchangedLeftFolder);
}

TimeZoneDefaults changedTimeZoneDefaults(const MySingleFolder &folder, const Zones &zones) {
    const Zone *source = changedSourceTimeZoneForAllPics(folder);
    const auto &target = folder.targetTimeZones.folderDefault;
    const Zone &sourceZone = source ? *source : zones.systemZone();
    return {sourceZone, target && target->zone() ? *target->zone() : sourceZone};
}

const Zone *changedSourceTimeZoneForAllPics(const MySingleFolder &folder) {
    const auto &source = folder.sourceTimeZones.folderDefault;
    return source && source->zone() ? &*source->zone() : nullptr;
}

bool hasAnyTimeZoneChangeForPic(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones,
                                const TimeZoneDefaults *otherThanDefaults) {
    const auto isChange = [&](const Zone &zone, Zone TimeZoneDefaults::*side) {
        return zone != zones.systemZone() &&
               !(otherThanDefaults && zone == otherThanDefaults->*side);
    };
    return isChange(sourceTimeZoneForPic(pic, sides, zones), &TimeZoneDefaults::source) ||
           isChange(targetTimeZoneForPic(pic, sides, zones), &TimeZoneDefaults::target);
}

} // namespace chronomender
