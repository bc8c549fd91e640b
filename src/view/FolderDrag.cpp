// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderDrag.h"

#include <algorithm>
#include <set>

namespace chronomender {

namespace {

constexpr const char *dateChangeName = "undoDateChangeText";
constexpr const char *resetName = "resetAllInFolderMode";
constexpr const char *itemChangeName = "dragInSingleMode";

bool isInsideBounds(Date date) {
    return date > minDate() && date < maxDate();
}

/// Earliest and latest main date of the items that a shift moves; none without such an item.
struct DateRange {
    OptionalDate first, last;
};

DateRange correctableRange(const MySingleFolder &folder) {
    DateRange range;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        if (!pic->hasCorrectableDate() || isMarker(pic->spDateTimeOriginal))
            continue;
        const Date date = pic->spDateTimeOriginal;
        range.first = range.first ? std::min(*range.first, date) : date;
        range.last = range.last ? std::max(*range.last, date) : date;
    }
    return range;
}

bool staysInsideBounds(const MySingleFolder &folder, absl::Duration totalShift) {
    const DateRange range = correctableRange(folder);
    return !range.first || (isInsideBounds(shifted(*range.first, totalShift)) &&
                            isInsideBounds(shifted(*range.last, totalShift)));
}

bool isMovable(const MySinglePicPtr &pic) {
    return !pic->isMovedToTrash && pic->hasCorrectableDate();
}

bool staysInsideBounds(const MySinglePic &pic, absl::Duration difference) {
    return isInsideBounds(
        shifted(pic.spDateTimeOriginal, pic.shift.singlePicModification + difference));
}

void updateFolderRanges(const std::vector<MySinglePicPtr> &pics) {
    std::set<MySingleFolderPtr> folders;
    for (const MySinglePicPtr &pic : pics)
        if (auto folder = pic->spSingleRealFolder())
            folders.insert(std::move(folder));
    for (const MySingleFolderPtr &folder : folders)
        sfUpdatePicsFromAndTill(*folder);
}

} // namespace

DateChangeOutcome dragChangedDates(absl::Duration totalShift, MySingleFolder &folder,
                                   UndoManager &undo) {
    if (totalShift == absl::ZeroDuration())
        folder.tempHasChangedDirection = false;
    const absl::Duration oldShift = folder.sfDateModificationsTimeInterval;
    const bool oldDirection = folder.hasChangedDirection;
    if (totalShift == oldShift && folder.tempHasChangedDirection == oldDirection)
        return DateChangeOutcome::NothingChanged;
    if (!staysInsideBounds(folder, totalShift))
        return DateChangeOutcome::RefusedOutOfBounds;

    setSfDateModificationsFromTimeInterval(folder, totalShift, folder.tempHasChangedDirection);
    const UndoGroup group(undo);
    undo.registerUndo(folder.shared_from_this(), [=, &undo](MySingleFolder &target) {
        undoRedoUpdateFolderModeDateModifications(target, oldShift, oldDirection, undo);
    });
    undo.setActionName(totalShift == absl::ZeroDuration() ? resetName : dateChangeName);
    return DateChangeOutcome::Done;
}

DateChangeOutcome dragMovesValuesBy(absl::Duration difference,
                                    const std::vector<MySinglePicPtr> &items, UndoManager &undo) {
    std::vector<MySinglePicPtr> moved;
    std::ranges::copy_if(items, std::back_inserter(moved), isMovable);
    if (moved.empty() || difference == absl::ZeroDuration())
        return DateChangeOutcome::NothingChanged;
    for (const MySinglePicPtr &pic : moved)
        if (!staysInsideBounds(*pic, difference))
            return DateChangeOutcome::RefusedOutOfBounds;

    const UndoGroup group(undo);
    for (const MySinglePicPtr &pic : moved) {
        updateSinglePicModificationBy(*pic, difference);
        undo.registerUndo(pic, [=, &undo](MySinglePic &target) {
            undoRedoUpdateSinglePicModeDate(target, -difference, undo);
        });
    }
    undo.setActionName(itemChangeName);
    updateFolderRanges(moved);
    return DateChangeOutcome::Done;
}

} // namespace chronomender
