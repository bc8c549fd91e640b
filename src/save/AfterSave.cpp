// SPDX-License-Identifier: GPL-3.0-or-later
#include "AfterSave.h"

#include "DateDifferences.h"
#include "DateModifications.h"
#include "ItemDates.h"
#include "ItemFilling.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <unordered_set>

namespace chronomender {
namespace {

constexpr unsigned kDateError = 4;
constexpr unsigned kTagAddError = 2;

void updateStampSlots(MySinglePic &pic, const PatchPlan &plan) {
    for (std::size_t i = 0; i < stampSlots.size(); ++i)
        if (plan.stamps[i].readBack && plan.stamps[i].result != SlotResult::Refused)
            pic.slots.*description(stampSlots[i]).oldDate = plan.stamps[i].readBack;
}

/// Of an item without patches for the tool: what the plan says stands in the file.
void takeWritten(MySinglePic &pic, const PatchPlan &plan) {
    applyPatches(pic.singlePicAttributes, plan.patches);
    updateStampSlots(pic, plan);
    pic.spType = typeAfterFillingEmptyTags(pic.spType);
    if (pic.spType == SpTypeNoTagsFixedDate)
        pic.spType = SpTypeNoTagsFileDate;
    if (plan.newGpsDate)
        pic.location.spGpsUTCDate = plan.newGpsDate;
}

/// The tool has moved everything about, and added what was asked for.
void takeReadAgain(MySinglePic &pic, const MySinglePic &readAgain) {
    pic.singlePicAttributes = readAgain.singlePicAttributes;
    pic.slots = readAgain.slots;
    pic.xmp = readAgain.xmp;
    pic.location = readAgain.location;
    pic.livePhoto = readAgain.livePhoto;
    pic.findings = readAgain.findings;
    pic.isHeaderIntel = readAgain.isHeaderIntel;
    pic.importState.isExtraHardLink = readAgain.importState.isExtraHardLink;
    pic.spType = readAgain.spType;
    pic.save.shouldAddExifDateTimeTags = pic.save.didAddExifDateTimeTags = false;
    pic.save.tagAddType = 0;
}

/// The file says what the plan says of it.
bool isAsPlanned(const MySinglePic &readAgain, const PatchPlan &plan) {
    for (std::size_t i = 0; i < stampSlots.size(); ++i) {
        const StampPlan &stamp = plan.stamps[i];
        if (stamp.readBack && stamp.result != SlotResult::Refused &&
            readAgain.slots.*description(stampSlots[i]).oldDate != stamp.readBack)
            return false;
    }
    return !plan.newGpsDate || readAgain.location.spGpsUTCDate == plan.newGpsDate;
}

/// What was written reads as its later instant, unless the earlier was wanted and accepted as such.
/// Without any stamp in the plan the reading stays.
void settleReading(MySinglePic &pic, const PatchPlan &plan) {
    const auto any = [&](auto isSo) { return std::ranges::any_of(plan.stamps, isSo); };
    int &usesAlternative = pic.zones.usesAltTimeAtAmbiguityReason;
    if (any([](const StampPlan &stamp) { return stamp.isAmbiguous; }))
        usesAlternative = 1;
    else if (any([](const StampPlan &stamp) { return stamp.readBack.has_value(); }))
        usesAlternative = 0;
}

void clearUndoRedo(const MySingleFolder &folder, UndoManager &undo) {
    if (!undo.canUndo() && !undo.canRedo())
        return;
    std::unordered_set<const void *> targets{&folder};
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray)
        targets.insert(pic.get());
    undo.removeAllActionsWithTargets(targets);
}

/// What a save of the folder leaves: items that keep their correction, and items that had none.
struct Remainder {
    std::vector<MySinglePicPtr> keepingTheirShift, leftOut;
};

Remainder remainderOf(const MySingleFolder &folder, const std::vector<MySinglePicPtr> &saved) {
    std::unordered_set<const MySinglePic *> done;
    for (const MySinglePicPtr &pic : saved)
        done.insert(pic.get());
    Remainder remainder;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        if (done.contains(pic.get()))
            continue;
        const bool keepsShift = pic->isThisTimeUnsaved();
        (keepsShift ? remainder.keepingTheirShift : remainder.leftOut).push_back(pic);
    }
    return remainder;
}

void moveZonesOn(MySingleFolder &folder, const Remainder &remainder, const Zones &zones) {
    if (!remainder.leftOut.empty())
        updateSelectionZonesForUnchangedFiles(folder, remainder.leftOut);
    updateSelectionZonesForTimeErrorFiles(folder, remainder.keepingTheirShift);
    cleanupTimeZones(folder);
    validateTZCUnsaved(folder, zones);
}

/// The folder's shift is gone; items that were not saved keep it as their own.
void dropFolderShift(MySingleFolder &folder, const std::vector<MySinglePicPtr> &keepers) {
    const absl::Duration shift = folder.sfDateModificationsTimeInterval;
    setDirection(folder, DateModificationFields{});
    if (keepers.empty() || shift == absl::ZeroDuration())
        return;
    changeEditMode(folder, EditMode::Single);
    for (const MySinglePicPtr &pic : keepers)
        updateSinglePicModificationBy(*pic, shift);
}

void dropSingleShifts(MySingleFolder &folder, const std::vector<MySinglePicPtr> &saved) {
    for (const MySinglePicPtr &pic : saved)
        pic->shift.singlePicModification = absl::ZeroDuration();
    clearSinglePicModeImages(folder);
}

} // namespace

bool needsFullUpdate(const MySinglePic &pic, const PatchPlan &plan) {
    return isEligibleForYoungerThanFile(typeAfterFillingEmptyTags(pic.spType)) ||
           pic.zones.usesAltTimeAtAmbiguityReason != 0 ||
           std::any_of(plan.stamps.begin(), plan.stamps.end(),
                       [](const StampPlan &stamp) { return stamp.isAmbiguous; });
}

MySinglePicPtr readBehindTool(const MySinglePic &pic, const PatchPlan &plan, OpenFile &file,
                              const absl::TimeZone &zone) {
    const auto attributes = file.attributes();
    auto copy = std::make_shared<MySinglePic>(pic);
    // With tags added there is an original stamp, and it goes first.
    copy->spType = pic.save.shouldAddExifDateTimeTags ? SpTypeExifOriginal
                                                      : typeAfterFillingEmptyTags(pic.spType);
    if (!attributes || !refreshInternalData(*copy, file, *attributes, zone))
        return nullptr;
    return isAsPlanned(*copy, plan) ? copy : nullptr;
}

void applySavedPlan(MySinglePic &pic, const PatchPlan &plan, const PatchOutcome &outcome,
                    const MySingleFolder &folder, const Zones &zones) {
    const Zone &target = targetTimeZoneForPic(pic, folder, zones);
    if (outcome.readAgain)
        takeReadAgain(pic, *outcome.readAgain);
    else
        takeWritten(pic, plan);
    if (outcome.attributes)
        takeFileAttributes(pic, *outcome.attributes);
    updateMainDate(pic);
    settleReading(pic, plan);
    validateDateDifferencesUsingTimeZone(pic, target.rules);
    pic.zones.isUnsavedDueToTZC = false;
    pic.livePhoto.livePhotoExactTimeCached.reset();
    pic.save.saveErrorType = 0;
    pic.save.fileUnchangedState = FileUnchangedState::Unchanged;
    pic.save.isInvalidDueToChangesAfterImport = false;
    pic.save.didRefreshTimesAfterSave = true;
    validateFilesystemNormalization(pic);
    validateMetaNormalization(pic);
}

void applySaveFailure(MySinglePic &pic, const PatchOutcome &outcome, bool savingAll) {
    pic.save.fileUnchangedState = outcome.state;
    pic.save.saveErrorType = (pic.save.shouldAddExifDateTimeTags ? kTagAddError : 0U) |
                             (savingAll || pic.isThisPureTimeUnsaved() ? kDateError : 0U);
    // After values were put back the file has new times, which are ours and belong to the proof.
    if (outcome.attributes)
        takeFileAttributes(pic, *outcome.attributes);
}

void clearDateValuesAfterSavingFolder(MySingleFolder &folder, const FolderSaveSummary &summary,
                                      UndoManager &undo, const Zones &zones,
                                      int dateComparisonThresold) {
    clearUndoRedo(folder, undo);
    const Remainder remainder = remainderOf(folder, summary.saved);
    for (const MySinglePicPtr &pic : summary.saved)
        updateSourceTimeZoneFromTargetTimeZoneForPic(*pic, folder, zones);
    moveZonesOn(folder, remainder, zones);
    if (folder.sfEditMode == EditMode::Together)
        dropFolderShift(folder, remainder.keepingTheirShift);
    else
        dropSingleShifts(folder, summary.saved);
    for (const MySinglePicPtr &pic : summary.needingFullUpdate)
        updateAllDatesAfterUpdatingTimezone(*pic, folder, zones, dateComparisonThresold);
    // Only now both halves of every group are what was saved.
    for (const MySinglePicPtr &pic : summary.saved)
        validateGroupDeviations(*pic);
    if (folder.sfEditMode == EditMode::Single || !summary.needingFullUpdate.empty())
        sfUpdatePicsFromAndTill(folder);
}

} // namespace chronomender
