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

/// What holds for an item that goes to another folder. A target that nobody chose and that is the
/// source zone stays so, whichever folder's defaults the item comes under.
struct CarriedChoices {
    std::optional<ZoneChoice> source, target;
    bool doesTargetFollow = false;
};

bool isSystem(const std::optional<ZoneChoice> &choice) {
    return !choice || choice->is(Kind::System);
}

CarriedChoices carriedChoices(const MySinglePic &pic, const MySingleFolder &from) {
    const auto copyOf = [](const ZoneChoice *choice) {
        return choice ? std::optional(*choice) : std::nullopt;
    };
    CarriedChoices carried{copyOf(choiceForPic(pic, from.sourceTimeZones)),
                           copyOf(choiceForPic(pic, from.targetTimeZones))};
    if (!carried.target) {
        carried.doesTargetFollow = isSystem(carried.source);
    } else if (carried.target->is(Kind::UnchangedLeftFolder)) {
        carried.target = from.sourceTimeZones.folderDefault;
        carried.doesTargetFollow = carried.source == carried.target;
    }
    return carried;
}

void enterUnlessDefault(const MySinglePic &pic, std::optional<ZoneChoice> choice,
                        ZoneAssignments &assignments) {
    if (!choice && assignments.folderDefault)
        choice = ZoneChoice::system();
    if (choice && choice != assignments.folderDefault)
        addPicWithZone(pic, *std::move(choice), assignments);
}

/// The target default of the folder, too, makes the item follow its source.
bool doesTargetFollowIn(const MySinglePic &pic, const MySingleFolder &folder) {
    const auto &target = folder.targetTimeZones.folderDefault;
    const ZoneChoice *source = choiceForPic(pic, folder.sourceTimeZones);
    if (!target)
        return !source || source->is(Kind::System);
    return target->is(Kind::UnchangedLeftFolder) &&
           !choiceForPicIgnoringDefault(pic, folder.sourceTimeZones);
}

void enterTarget(const MySinglePic &pic, const CarriedChoices &carried, MySingleFolder &folder) {
    if (!carried.doesTargetFollow)
        enterUnlessDefault(pic, carried.target, folder.targetTimeZones);
    else if (!doesTargetFollowIn(pic, folder))
        addPicWithZone(pic, ZoneChoice::marker(Kind::UnchangedLeft), folder.targetTimeZones);
}

bool hasZones(const MySingleFolder &folder) {
    return !folder.sourceTimeZones.isEmpty() || !folder.targetTimeZones.isEmpty();
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

void removePicFromAllZones(const MySinglePic &pic, MySingleFolder &folder) {
    removePic(pic, folder.sourceTimeZones);
    removePic(pic, folder.targetTimeZones);
}

void moveTimeZoneInfosForPic(const MySinglePic &pic, MySingleFolder &from, MySingleFolder &to) {
    if (pic.bundleMasterImage() || !(hasZones(from) || hasZones(to)))
        return;
    CarriedChoices carried = carriedChoices(pic, from);
    removePicFromAllZones(pic, from);
    if (to.isEXIFIgnored)
        return;
    enterUnlessDefault(pic, std::move(carried.source), to.sourceTimeZones);
    enterTarget(pic, carried, to);
}

bool moveTimeZoneInfosFromDependentToMaster(const MySinglePic &dependent, const MySinglePic &master,
                                            MySingleFolder &folder) {
    moveChoice(dependent, master, folder.targetTimeZones);
    return moveChoice(dependent, master, folder.sourceTimeZones);
}

void setTZDefaultsSource(MySingleFolder &folder, ZoneChoice source, bool targetFollows) {
    if (hasZones(folder))
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

} // namespace chronomender
