// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlternativeReading.h"

#include "DateDifferences.h"
#include "DateModifications.h"
#include "DaylightSavingChecks.h"

#include <algorithm>

namespace chronomender {
namespace {

bool usesAlternative(const MySinglePic &pic) {
    return pic.zones.usesAltTimeAtAmbiguityReason != 0;
}

/// A file and the reading that it is to take.
struct WantedReading {
    MySinglePicPtr pic;
    bool isAlternative = false;
};

/// What the target means for one item, which may be given by either half of its group.
std::vector<WantedReading> wantedReadings(const MySinglePicPtr &pic, AlternativeTarget target,
                                          bool isAlternative) {
    const MySinglePicPtr owner = pic->bundleMasterImage();
    const MySinglePicPtr &master = owner ? owner : pic;
    const MySinglePicPtr &dependent = master->group.bundleDependentImage;
    const bool isMaster = isDateSourceAmbiguousAtImport(*master);
    const bool isDependent = dependent && isDateSourceAmbiguousAtImport(*dependent);
    const bool areBoth = isMaster && isDependent;
    std::vector<WantedReading> wanted;
    if (isMaster &&
        (target == AlternativeTarget::Master || (areBoth && target == AlternativeTarget::Both)))
        wanted.push_back({master, isAlternative});
    const bool takesDependent = target == AlternativeTarget::DependentAsMaster ||
                                (target == AlternativeTarget::Master ? !isMaster : areBoth);
    if (isDependent && takesDependent)
        wanted.push_back({dependent, target == AlternativeTarget::DependentAsMaster
                                         ? usesAlternative(*master)
                                         : isAlternative});
    return wanted;
}

/// Only what changes: an empty command must leave no undo step.
std::vector<WantedReading> changingReadings(const std::vector<MySinglePicPtr> &pics,
                                            AlternativeTarget target, bool isAlternative) {
    std::vector<WantedReading> changing;
    for (const MySinglePicPtr &pic : pics)
        for (WantedReading &wanted : wantedReadings(pic, target, isAlternative))
            if (usesAlternative(*wanted.pic) != wanted.isAlternative)
                changing.push_back(std::move(wanted));
    return changing;
}

/// Both sides of a group tell how far they lie apart.
void validateWithMaster(MySinglePic &pic, const Zones &zones) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    if (!folder)
        return;
    validateDateDifferences(pic, *folder, zones);
    if (const MySinglePicPtr master = pic.bundleMasterImage())
        validateDateDifferences(*master, *folder, zones);
}

} // namespace

bool changeAmbiguityCorrectionStateTo(MySinglePic &pic, bool isAlternative, const Zones &zones,
                                      UndoManager &undo) {
    if (usesAlternative(pic) == isAlternative)
        return false;
    // After a change of zone the stamp may mean one instant only: then no date was moved for the
    // alternative, and none moves back.
    if (isDateSourceAmbiguousAtImport(pic))
        correctAmbiguousDatesBy(pic, isAlternative ? kEarlierReading : -kEarlierReading);
    pic.zones.usesAltTimeAtAmbiguityReason = isAlternative ? 1 : 0;
    validateWithMaster(pic, zones);
    const MySinglePicPtr master = pic.bundleMasterImage();
    undo.recordAffected(master ? master : pic.shared_from_this());
    undo.registerUndo(pic.shared_from_this(), [isAlternative, &zones, &undo](MySinglePic &target) {
        changeAmbiguityCorrectionStateTo(target, !isAlternative, zones, undo);
    });
    return true;
}

std::size_t useAmbiguityAlternative(const std::vector<MySinglePicPtr> &pics,
                                    AlternativeTarget target, bool isAlternative,
                                    const Zones &zones, UndoManager &undo) {
    const std::vector<WantedReading> readings = changingReadings(pics, target, isAlternative);
    if (readings.empty())
        return 0;
    const std::vector<MySingleFolderPtr> folders = foldersOf(pics);
    const UndoGroup group(undo);
    for (const MySingleFolderPtr &folder : folders)
        registerRangeRefresh(*folder, undo);
    const auto changed = std::ranges::count_if(readings, [&](const WantedReading &wanted) {
        return changeAmbiguityCorrectionStateTo(*wanted.pic, wanted.isAlternative, zones, undo);
    });
    for (const MySingleFolderPtr &folder : folders) {
        sfUpdatePicsFromAndTill(*folder);
        registerRangeRefresh(*folder, undo);
    }
    undo.setActionName("ambiguityCorrection_undoRedo");
    return static_cast<std::size_t>(changed);
}

} // namespace chronomender
