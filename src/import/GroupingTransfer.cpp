// SPDX-License-Identifier: GPL-3.0-or-later
#include "GroupingTransfer.h"

#include "DateModifications.h"
#include "MovieFilling.h"
#include "NameParts.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

void moveMark(bool &dependent, bool &master) {
    master = std::exchange(dependent, false) || master;
}

void moveMarks(Marks &dependent, Marks &master) {
    moveMark(dependent.isKeeper, master.isKeeper);
    moveMark(dependent.isRejected, master.isRejected);
    if (dependent.marker != 0)
        master.marker = dependent.marker;
}

/// The folder counts items of its main list that have a shift of their own. Where both sides have
/// one, one of the two leaves the list.
void moveShift(MySinglePic &dependent, MySinglePic &master, MySingleFolder &folder) {
    const absl::Duration none = absl::ZeroDuration();
    absl::Duration &ofDependent = dependent.shift.singlePicModification;
    absl::Duration &ofMaster = master.shift.singlePicModification;
    if (folder.sfEditMode == EditMode::Single && ofDependent != none) {
        if (ofMaster == none)
            ofMaster = ofDependent;
        else
            removeSinglePicModeImage(folder);
    }
    ofDependent = ofMaster;
}

/// A name that was wanted for one file of a pair, for the other one.
std::string adaptedTargetName(const std::string &wantedName, const MySinglePic &pic) {
    const std::string_view old = extensionOfName(wantedName);
    std::string name = wantedName;
    if (!old.empty())
        name.erase(name.size() - old.size() - 1);
    const std::string own = pic.extension();
    return own.empty() ? name : name + '.' + own;
}

/// The folder counts items of its main list that have an error. The number that was to be tried
/// next goes along with the wanted name.
void moveRenameError(MySinglePic &dependent, MySinglePic &master, MySingleFolder &folder) {
    RenameState &from = dependent.rename, &to = master.rename;
    if (from.hasRenameError != 0 && to.hasRenameError != 0) {
        --folder.renameErrors;
    } else if (from.hasRenameError != 0) {
        to.hasRenameError = from.hasRenameError;
        to.addonCounter = from.addonCounter;
        to.wantedName = from.wantedName ? std::optional(adaptedTargetName(*from.wantedName, master))
                                        : std::nullopt;
    }
    from.hasRenameError = 0;
    from.wantedName.reset();
    from.addonCounter.reset();
}

} // namespace

void makeTheDependentImageTo(const MySinglePicPtr &dependent, const MySinglePicPtr &master) {
    master->group.bundleDependentImage = dependent;
    dependent->group.bundleMasterImage = master;
    for (const std::string &companion : dependent->spSidecarExtensions)
        addSidecarExtension(*master, companion);
    addSidecarExtension(*master, dependent->extension());
    std::erase_if(dependent->spSidecarExtensions, [&](const std::string &companion) {
        return !isXmpSidecarExtension(companion, dependent->extension());
    });
}

void moveInfosFromDependentToMaster(MySinglePic &dependent, MySinglePic &master,
                                    MySingleFolder &folder) {
    if (dependent.isMovie() && !folder.isEXIFIgnored)
        transformToLivePhotoMovie(dependent);
    moveMarks(dependent.marks, master.marks);
    moveShift(dependent, master, folder);
    if (hasImportOptionChanges(dependent.spType) && !hasImportOptionChanges(master.spType))
        --folder.fixedDates;
    moveRenameError(dependent, master, folder);
}

void changeDependentAndMaster(MySinglePic &dependent, MySinglePic &master, MySingleFolder &folder,
                              const Zones &zones, int dateComparisonThresold) {
    if (moveTimeZoneInfosFromDependentToMaster(dependent, master, folder))
        updateAllDatesAfterUpdatingTimezone(master, folder, zones, dateComparisonThresold);
    validateTZCUnsavedForPic(master, folder, zones);
}

} // namespace chronomender
