// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

/// The zone a choice stands for by name; null for the system's, under whichever name.
const Zone *changedZone(const ZoneChoice *choice, const Zones &zones) {
    if (!choice || !choice->zone() || *choice->zone() == zones.systemZone())
        return nullptr;
    return &*choice->zone();
}

bool areSame(const Zone *a, const Zone *b) {
    return a && b ? *a == *b : a == b;
}

/// Types without any stamp that a zone could move.
bool hasNoZoneDependentStamps(SpType type) {
    return isInRange(type, SpTypeNoTagsFileDate, SpTypeMovieFileDate) || hasNoCorrectableDate(type);
}

/// These targets leave each item in its source zone.
bool followsSource(const ZoneChoice &target) {
    return target.is(Kind::UnchangedLeft) || target.is(Kind::Unchanged) || target.is(Kind::Own);
}

bool areZonesUnsaved(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones) {
    if (pic.importState.isLeftAlone || hasNoZoneDependentStamps(pic.spType))
        return false;
    const ZoneChoice *source = choiceForPic(pic, sides.source);
    const ZoneChoice *target = choiceForPic(pic, sides.target);
    if (target && followsSource(*target))
        return false;
    if (target && target->is(Kind::UnchangedLeftFolder)) {
        const ZoneChoice *ofFolder = sides.source.folderDefault();
        return ofFolder && !areSame(changedZone(source, zones), changedZone(ofFolder, zones));
    }
    return !areSame(changedZone(source, zones), changedZone(target, zones));
}

void clearUnsavedDueToTZC(MySingleFolder &folder) {
    if (!std::exchange(folder.isUnsavedDueToTZC, false))
        return;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        pic->zones.isUnsavedDueToTZC = false;
        if (const MySinglePicPtr &dependent = pic->group.bundleDependentImage)
            dependent->zones.isUnsavedDueToTZC = false;
    }
}

} // namespace

void validateTZCUnsavedForPic(MySinglePic &pic, const ZoneSides &sides, const Zones &zones) {
    pic.zones.isUnsavedDueToTZC = areZonesUnsaved(pic, sides, zones);
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        dependent->zones.isUnsavedDueToTZC = areZonesUnsaved(*dependent, sides, zones);
}

void validateTZCUnsaved(MySingleFolder &folder, const Zones &zones) {
    if (folder.sourceTimeZones.isEmpty() && folder.targetTimeZones.isEmpty())
        return clearUnsavedDueToTZC(folder);
    folder.isUnsavedDueToTZC = false;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        validateTZCUnsavedForPic(*pic, folder, zones);
        const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
        folder.isUnsavedDueToTZC |=
            pic->zones.isUnsavedDueToTZC || (dependent && dependent->zones.isUnsavedDueToTZC);
    }
}

bool isFolderAffectedByTZC(const MySingleFolder &folder, const Zones &zones) {
    const auto isAnyChanged = [&](const ZoneAssignments &side) {
        const ZoneChoice *ofFolder = side.folderDefault ? &*side.folderDefault : nullptr;
        return changedZone(ofFolder, zones) ||
               std::ranges::any_of(side.ofItems, [&](const auto &entry) {
                   return changedZone(&entry.second, zones);
               });
    };
    return isAnyChanged(folder.sourceTimeZones) || isAnyChanged(folder.targetTimeZones);
}

} // namespace chronomender
