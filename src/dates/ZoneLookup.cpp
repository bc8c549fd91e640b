// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

#include "IsoStamp.h"
#include "StampConversions.h"
#include "StampSyntax.h"
#include "XmpStampConversions.h"

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

const ZoneChoice *ownChoiceOf(const MySinglePic &master, const ZoneAssignments &assignments) {
    if (const ZoneChoice *own = assignments.ownChoice(master.sessionUniqueId))
        return own;
    const MySinglePicPtr &dependent = master.group.bundleDependentImage;
    return dependent ? assignments.ownChoice(dependent->sessionUniqueId) : nullptr;
}

/// What holds for the item among the target choices, with the folder-wide marker resolved. Null
/// means the system's zone.
const ZoneChoice *targetChoiceForPic(const MySinglePic &pic, const MySingleFolder &folder) {
    const ZoneChoice *choice = choiceForPic(pic, folder.targetTimeZones);
    if (!choice || !choice->is(Kind::UnchangedLeftFolder))
        return choice;
    const auto &sourceDefault = folder.sourceTimeZones.folderDefault;
    return sourceDefault ? &*sourceDefault : nullptr;
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

const ZoneChoice *choiceForPicIgnoringDefault(const MySinglePic &pic,
                                              const ZoneAssignments &assignments) {
    if (assignments.ofItems.empty())
        return nullptr;
    const MySinglePicPtr master = pic.bundleMasterImage();
    return ownChoiceOf(master ? *master : pic, assignments);
}

const ZoneChoice *choiceForPic(const MySinglePic &pic, const ZoneAssignments &assignments) {
    if (const ZoneChoice *own = choiceForPicIgnoringDefault(pic, assignments))
        return own;
    return assignments.folderDefault ? &*assignments.folderDefault : nullptr;
}

const Zone &sourceTimeZoneForPic(const MySinglePic &pic, const MySingleFolder &folder,
                                 const Zones &zones) {
    const ZoneChoice *choice = choiceForPic(pic, folder.sourceTimeZones);
    return choice && choice->zone() ? *choice->zone() : zones.systemZone();
}

const Zone &targetTimeZoneForPic(const MySinglePic &pic, const MySingleFolder &folder,
                                 const Zones &zones) {
    const ZoneChoice *choice = targetChoiceForPic(pic, folder);
    if (!choice || choice->is(Kind::System))
        return zones.systemZone();
    return choice->zone() ? *choice->zone() : sourceTimeZoneForPic(pic, folder, zones);
}

Zone sourceZoneForSlot(const MySinglePic &pic, StampSlot slot, const MySingleFolder &folder,
                       const Zones &zones) {
    auto own = ownZoneOfSlot(pic, slot);
    return own ? *std::move(own) : sourceTimeZoneForPic(pic, folder, zones);
}

Zone targetZoneForSlot(const MySinglePic &pic, StampSlot slot, const MySingleFolder &folder,
                       const Zones &zones) {
    if (isMetaDate(pic, slot))
        return targetZoneForMetaDate(pic, folder, zones);
    const ZoneChoice *choice = targetChoiceForPic(pic, folder);
    if (choice && choice->is(Kind::Own))
        return sourceZoneForSlot(pic, slot, folder, zones);
    return targetTimeZoneForPic(pic, folder, zones);
}

Zone targetZoneForMetaDate(const MySinglePic &pic, const MySingleFolder &folder,
                           const Zones &zones) {
    const auto stamp = metaDateOf(pic);
    if (stamp && stamp->form.zone == IsoZone::Letter)
        return Zones::utc();
    const ZoneChoice *choice = targetChoiceForPic(pic, folder);
    auto own = choice && choice->is(Kind::Own) ? ownZoneOfMetaDate(pic) : std::nullopt;
    return own ? *std::move(own) : targetTimeZoneForPic(pic, folder, zones);
}

bool hasAssignedTargetZone(const MySinglePic &pic, const MySingleFolder &folder) {
    const ZoneChoice *choice = choiceForPic(pic, folder.targetTimeZones);
    return choice && !choice->is(Kind::UnchangedLeft) && !choice->is(Kind::UnchangedLeftFolder);
}

bool hasAnyTimeZoneChangeForPic(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones) {
    return sourceTimeZoneForPic(pic, folder, zones) != zones.systemZone() ||
           targetTimeZoneForPic(pic, folder, zones) != zones.systemZone();
}

} // namespace chronomender
