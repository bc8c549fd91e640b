// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

/// These targets follow the source instead of naming a zone, so that a save moves nothing.
bool followsSource(const ZoneChoice &target) {
    return target.is(Kind::Unchanged) || target.is(Kind::Own);
}

/// The next save moves the folder's source on, so that items which were not saved must be held
/// where they are.
bool doesSourceDefaultMove(const MySingleFolder &folder) {
    const auto &target = folder.targetTimeZones.folderDefault;
    if (!target)
        return folder.sourceTimeZones.folderDefault.has_value();
    return !target->is(Kind::UnchangedLeftFolder) && !followsSource(*target);
}

/// The zone a choice stands for by name; none for the system's, under whichever name.
std::optional<Zone> normalized(const ZoneChoice *choice, const Zones &zones) {
    if (!choice || !choice->zone() || *choice->zone() == zones.systemZone())
        return std::nullopt;
    return choice->zone();
}

/// Types without any stamp that a zone could move.
bool hasNoZoneDependentStamps(SpType type) {
    return isInRange(type, SpTypeNoTagsFileDate, SpTypeMovieFileDate) || hasNoCorrectableDate(type);
}

bool areZonesUnsaved(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones) {
    if (pic.importState.isLeftAlone || hasNoZoneDependentStamps(pic.spType))
        return false;
    const ZoneChoice *source = choiceForPic(pic, folder.sourceTimeZones);
    const ZoneChoice *target = choiceForPic(pic, folder.targetTimeZones);
    if (target && (target->is(Kind::UnchangedLeft) || followsSource(*target)))
        return false;
    if (target && target->is(Kind::UnchangedLeftFolder)) {
        const auto &sourceDefault = folder.sourceTimeZones.folderDefault;
        return sourceDefault && normalized(source, zones) != normalized(&*sourceDefault, zones);
    }
    return normalized(source, zones) != normalized(target, zones);
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

/// An item that stays in its source zone and has no source of its own keeps the one that held for
/// it until now.
bool keepsPresentSource(const MySinglePic &pic, MySingleFolder &folder) {
    const ZoneChoice *source = choiceForPicIgnoringDefault(pic, folder.sourceTimeZones);
    const ZoneChoice *target = choiceForPicIgnoringDefault(pic, folder.targetTimeZones);
    if (source || !target || !target->is(Kind::UnchangedLeft) || !doesSourceDefaultMove(folder))
        return false;
    const auto present = folder.sourceTimeZones.folderDefault;
    addPicWithZone(pic, present.value_or(ZoneChoice::system()), folder.sourceTimeZones);
    return true;
}

void pinToPresentChoice(const MySinglePic &pic, ZoneAssignments &assignments) {
    if (choiceForPicIgnoringDefault(pic, assignments))
        return;
    addPicWithZone(pic, assignments.folderDefault.value_or(ZoneChoice::system()), assignments);
}

/// True when the master has a choice of its own afterwards.
bool moveChoice(const MySinglePic &dependent, const MySinglePic &master,
                ZoneAssignments &assignments) {
    auto &choices = assignments.ofItems;
    if (auto moved = choices.extract(dependent.sessionUniqueId)) {
        moved.key() = master.sessionUniqueId;
        choices.insert(std::move(moved));
    }
    return choices.contains(master.sessionUniqueId);
}

} // namespace

void addPicWithZone(const MySinglePic &pic, ZoneChoice choice, ZoneAssignments &assignments) {
    removePic(pic, assignments);
    const MySinglePicPtr master = pic.bundleMasterImage();
    assignments.ofItems.insert_or_assign((master ? *master : pic).sessionUniqueId,
                                         std::move(choice));
}

void removePic(const MySinglePic &pic, ZoneAssignments &assignments) {
    const MySinglePicPtr master = pic.bundleMasterImage();
    const MySinglePic &first = master ? *master : pic;
    assignments.ofItems.erase(first.sessionUniqueId);
    if (const MySinglePicPtr &second = first.group.bundleDependentImage)
        assignments.ofItems.erase(second->sessionUniqueId);
}

bool moveTimeZoneInfosFromDependentToMaster(const MySinglePic &dependent, const MySinglePic &master,
                                            MySingleFolder &folder) {
    moveChoice(dependent, master, folder.targetTimeZones);
    return moveChoice(dependent, master, folder.sourceTimeZones);
}

void setTZDefaultsSource(MySingleFolder &folder, ZoneChoice source, bool targetFollows) {
    if (!folder.sourceTimeZones.isEmpty() || !folder.targetTimeZones.isEmpty())
        return;
    folder.sourceTimeZones.folderDefault = std::move(source);
    if (targetFollows)
        folder.targetTimeZones.folderDefault = ZoneChoice::marker(Kind::UnchangedLeftFolder);
}

bool updateSourceTimeZoneFromTargetTimeZoneForPic(MySinglePic &pic, MySingleFolder &folder,
                                                  const Zones &zones) {
    const bool didDiffer =
        sourceTimeZoneForPic(pic, folder, zones) != targetTimeZoneForPic(pic, folder, zones);
    if (pic.bundleMasterImage() || keepsPresentSource(pic, folder))
        return didDiffer;
    const ZoneChoice *holding = choiceForPic(pic, folder.targetTimeZones);
    if (holding && followsSource(*holding))
        return didDiffer;
    const ZoneChoice *source = choiceForPicIgnoringDefault(pic, folder.sourceTimeZones);
    const ZoneChoice *target = choiceForPicIgnoringDefault(pic, folder.targetTimeZones);
    if (!target && source) {
        removePic(pic, folder.sourceTimeZones);
    } else if (target && !target->is(Kind::UnchangedLeft) && !(source && *source == *target)) {
        addPicWithZone(pic, *target, folder.sourceTimeZones);
        addPicWithZone(pic, ZoneChoice::marker(Kind::UnchangedLeft), folder.targetTimeZones);
    }
    return didDiffer;
}

void cleanupTimeZones(MySingleFolder &folder) {
    auto &source = folder.sourceTimeZones.folderDefault;
    auto &target = folder.targetTimeZones.folderDefault;
    if (!target) {
        source.reset();
    } else if (!target->is(Kind::UnchangedLeftFolder) && !followsSource(*target)) {
        source = std::move(target);
        target = ZoneChoice::marker(Kind::UnchangedLeftFolder);
    }
}

void updateSelectionZonesForUnchangedFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &leftOut) {
    for (const MySinglePicPtr &pic : leftOut)
        keepsPresentSource(*pic, folder);
}

void updateSelectionZonesForTimeErrorFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &failed) {
    if (!doesSourceDefaultMove(folder))
        return;
    for (const MySinglePicPtr &pic : failed) {
        pinToPresentChoice(*pic, folder.targetTimeZones);
        pinToPresentChoice(*pic, folder.sourceTimeZones);
    }
}

void validateTZCUnsavedForPic(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones) {
    pic.zones.isUnsavedDueToTZC = areZonesUnsaved(pic, folder, zones);
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        dependent->zones.isUnsavedDueToTZC = areZonesUnsaved(*dependent, folder, zones);
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

} // namespace chronomender
