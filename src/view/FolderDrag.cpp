// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderDrag.h"

namespace chronomender {
namespace {

constexpr const char *dateChangeName = "undoDateChangeText";
constexpr const char *resetName = "resetAllInFolderMode";
constexpr const char *itemChangeName = "dragInSingleMode";

} // namespace

DateChangeOutcome dragChangedDates(absl::Duration totalShift, MySingleFolder &folder,
                                   UndoManager &undo) {
    const absl::Duration oldShift = folder.sfDateModificationsTimeInterval;
    const bool oldDirection = folder.hasChangedDirection;
    if (totalShift != oldShift && !staysInsideBounds(folder, totalShift))
        return DateChangeOutcome::RefusedOutOfBounds;
    if (totalShift == absl::ZeroDuration())
        folder.tempHasChangedDirection = false;
    if (totalShift == oldShift && folder.tempHasChangedDirection == oldDirection)
        return DateChangeOutcome::NothingChanged;

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
    std::vector<ShiftRecord> records;
    records.reserve(items.size());
    for (const MySinglePicPtr &pic : items)
        records.push_back({pic, difference});
    return dragMovesValuesBy(std::move(records), undo);
}

DateChangeOutcome dragMovesValuesBy(std::vector<ShiftRecord> records, UndoManager &undo,
                                    const MySinglePicPtr &selection) {
    std::erase_if(records, [](const ShiftRecord &record) {
        return record.dateDifference == absl::ZeroDuration() || !isMovable(*record.thumb);
    });
    if (records.empty())
        return DateChangeOutcome::NothingChanged;
    for (const auto &[pic, difference] : records)
        if (!staysInsideBounds(*pic, pic->shift.singlePicModification + difference))
            return DateChangeOutcome::RefusedOutOfBounds;
    const UndoGroup group(undo);
    updateThumbValues(records, undo, selection);
    undo.setActionName(itemChangeName);
    return DateChangeOutcome::Done;
}

bool followsShift(const MySinglePic &pic) {
    const MySinglePic &sortPic = pic.sortPic();
    return sortPic.hasCorrectableDate() && !isMarker(sortPic.spDateTimeOriginal);
}

absl::Duration differenceToDate(const MySinglePic &pic, Date date) {
    return date - pic.sortPic().spDateTimeOriginal - pic.presentShift();
}

} // namespace chronomender
