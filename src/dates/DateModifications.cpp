// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateModifications.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace chronomender {
namespace {

Date utcDate(int year, int month, int day, int hour, int minute, int second) {
    return absl::FromCivil(absl::CivilSecond(year, month, day, hour, minute, second),
                           absl::UTCTimeZone());
}

/// A fraction of a second stays in the shift and is not shown.
void setTogetherShift(MySingleFolder &folder, absl::Duration shift,
                      const DateModificationFields &fields) {
    folder.sfDateModificationsTimeInterval = shift;
    folder.sfDateModifications = fields;
    folder.hasChangedDirection = folder.tempHasChangedDirection = fields.dmDirection == "-";
    sfUpdatePicsFromAndTill(folder);
}

/// Gives one item its own shift and keeps the folder's count of such items.
void setSinglePicModification(MySinglePic &pic, absl::Duration shift) {
    const absl::Duration before = std::exchange(pic.shift.singlePicModification, shift);
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        dependent->shift.singlePicModification = shift;
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    if (!folder)
        return;
    const bool wasShifted = before != absl::ZeroDuration();
    const bool isShifted = shift != absl::ZeroDuration();
    if (!wasShifted && isShifted)
        addSinglePicModeImage(*folder);
    else if (wasShifted && !isShifted)
        removeSinglePicModeImage(*folder);
}

/// What stands for the item in a list.
MySinglePicPtr masterOf(MySinglePic &pic) {
    const MySinglePicPtr master = pic.bundleMasterImage();
    return master ? master : pic.shared_from_this();
}

bool isInsideBounds(Date date) {
    return date > minDate() && date < maxDate();
}

} // namespace

Date minDate() {
    return utcDate(1, 1, 2, 0, 0, 0);
}

Date maxDate() {
    return utcDate(4999, 12, 31, 23, 59, 59);
}

bool isMovable(const MySinglePic &pic) {
    return !pic.isMovedToTrash && pic.hasCorrectableDate();
}

bool staysInsideBounds(const MySinglePic &pic, absl::Duration totalShift) {
    return isMarker(pic.spDateTimeOriginal) ||
           isInsideBounds(shifted(pic.spDateTimeOriginal, totalShift));
}

bool staysInsideBounds(const MySingleFolder &folder, absl::Duration totalShift) {
    return std::ranges::all_of(folder.sfPicDetails_fullArray, [&](const MySinglePicPtr &pic) {
        return !pic->hasCorrectableDate() || staysInsideBounds(*pic, totalShift);
    });
}

void updateSinglePicModificationBy(MySinglePic &pic, absl::Duration difference) {
    if (difference != absl::ZeroDuration() && pic.hasCorrectableDate())
        setSinglePicModification(pic, difference + pic.shift.singlePicModification);
}

void setDirection(MySingleFolder &folder, const DateModificationFields &fields) {
    setTogetherShift(folder, timeIntervalFromFields(fields), fields);
}

void setDirection(const MyCompoundFolder &folders, const DateModificationFields &fields) {
    for (const MySingleFolderPtr &folder : folders.folders())
        setDirection(*folder, fields);
}

void setSfDateModificationsFromTimeInterval(MySingleFolder &folder, absl::Duration shift,
                                            bool isDirectionNegative) {
    folder.hasDSTJumperType = 0;
    setTogetherShift(folder, shift, fieldsFromTimeInterval(shift, isDirectionNegative));
}

void setSfDateModificationsFromTimeInterval(const MyCompoundFolder &folders, absl::Duration shift,
                                            bool isDirectionNegative) {
    for (const MySingleFolderPtr &folder : folders.folders())
        setSfDateModificationsFromTimeInterval(*folder, shift, isDirectionNegative);
}

void sfUpdatePicsFromAndTill(MySingleFolder &folder, UndoManager *undo, FolderRefresh refresh) {
    const bool didHoldItems = std::exchange(folder.sfPics, folder.count()) > 0;
    if (folder.sfPics > 0) {
        const auto byDate = [](const MySinglePicPtr &a, const MySinglePicPtr &b) {
            return a->spDateTimeModified_sort() < b->spDateTimeModified_sort();
        };
        const auto &pics = folder.sfPicDetails_fullArray;
        const auto [first, last] = std::minmax_element(pics.begin(), pics.end(), byDate);
        folder.sfFrom = (*first)->spDateTimeModified_sort();
        folder.sfTill = (*last)->spDateTimeModified_sort();
        return;
    }
    if (!didHoldItems || refresh == FolderRefresh::DuringReimport)
        return;
    folder.sfFrom = folder.sfTill = std::nullopt;
    if (folder.sfEditMode == EditMode::Together) {
        setTogetherShift(folder, absl::ZeroDuration(), {});
        if (undo)
            undo->removeAllActionsWithTarget(&folder);
    }
}

std::vector<MySingleFolderPtr> foldersOf(const std::vector<MySinglePicPtr> &pics) {
    std::vector<MySingleFolderPtr> folders;
    std::unordered_set<const MySingleFolder *> seen;
    for (const MySinglePicPtr &pic : pics)
        if (MySingleFolderPtr folder = pic->spSingleRealFolder();
            folder && seen.insert(folder.get()).second)
            folders.push_back(std::move(folder));
    return folders;
}

void updateFolderRanges(const std::vector<MySinglePicPtr> &pics) {
    for (const MySingleFolderPtr &folder : foldersOf(pics))
        sfUpdatePicsFromAndTill(*folder);
}

void registerRangeRefresh(MySingleFolder &folder, UndoManager &undo) {
    undo.registerUndo(folder.shared_from_this(), [&undo](MySingleFolder &target) {
        sfUpdatePicsFromAndTill(target);
        registerRangeRefresh(target, undo);
    });
}

void addSinglePicModeImage(MySingleFolder &folder) {
    ++folder.singlePicModeImages;
}

void removeSinglePicModeImage(MySingleFolder &folder) {
    if (folder.singlePicModeImages > 0)
        --folder.singlePicModeImages;
}

void clearSinglePicModeImages(MySingleFolder &folder) {
    folder.singlePicModeImages = std::count_if(
        folder.sfPicDetails_fullArray.begin(), folder.sfPicDetails_fullArray.end(),
        [](const MySinglePicPtr &pic) { return pic->singlePicModeDate().has_value(); });
}

void changeEditMode(MySingleFolder &folder, EditMode mode) {
    if (folder.sfEditMode == mode)
        return;
    folder.sfEditMode = mode;
    const absl::Duration shift = folder.sfDateModificationsTimeInterval;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        setSinglePicModification(*pic, absl::ZeroDuration());
        if (mode == EditMode::Single)
            updateSinglePicModificationBy(*pic, shift);
    }
    setTogetherShift(folder, absl::ZeroDuration(), {});
}

void updateThumbValues(const std::vector<ShiftRecord> &records, UndoManager &undo,
                       const MySinglePicPtr &selection) {
    std::vector<MySinglePicPtr> moved;
    for (const ShiftRecord &record : records)
        if (isMovable(*record.thumb))
            moved.push_back(record.thumb);
    if (moved.empty())
        return;
    const bool isSelectionMoved = std::ranges::find(moved, selection) != moved.end();
    const MySinglePicPtr &main = isSelectionMoved ? selection : moved.front();
    const std::vector<MySingleFolderPtr> folders = foldersOf(moved);
    const UndoGroup group(undo);
    for (const MySingleFolderPtr &folder : folders)
        registerRangeRefresh(*folder, undo);
    for (const ShiftRecord &record : records) {
        if (!isMovable(*record.thumb))
            continue;
        const auto role = record.thumb == main ? ShiftedItem::Selection : ShiftedItem::Other;
        undoRedoUpdateSinglePicModeDate(*record.thumb, record.dateDifference, role, undo);
    }
    for (const MySingleFolderPtr &folder : folders) {
        sfUpdatePicsFromAndTill(*folder, &undo);
        registerRangeRefresh(*folder, undo);
    }
}

void undoRedoUpdateSinglePicModeDate(MySinglePic &pic, absl::Duration difference,
                                     ShiftedItem isSelection, UndoManager &undo) {
    updateSinglePicModificationBy(pic, difference);
    if (isSelection == ShiftedItem::Selection)
        undo.recordAffected(masterOf(pic));
    undo.registerUndo(pic.shared_from_this(), [=, &undo](MySinglePic &target) {
        undoRedoUpdateSinglePicModeDate(target, -difference, isSelection, undo);
    });
}

void undoRedoUpdateFolderModeDateModifications(MySingleFolder &folder, absl::Duration shift,
                                               bool isDirectionNegative, UndoManager &undo) {
    const absl::Duration before = folder.sfDateModificationsTimeInterval;
    const bool wasDirectionNegative = folder.hasChangedDirection;
    setSfDateModificationsFromTimeInterval(folder, shift, isDirectionNegative);
    undo.recordAffected(folder.shared_from_this());
    undo.registerUndo(
        folder.shared_from_this(), [before, wasDirectionNegative, &undo](MySingleFolder &target) {
            undoRedoUpdateFolderModeDateModifications(target, before, wasDirectionNegative, undo);
        });
}

void dateValuesResetSingleMode(MySingleFolder &folder, UndoManager &undo) {
    std::vector<ShiftRecord> records;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray)
        if (pic->singlePicModeDate())
            records.push_back({pic, -pic->shift.singlePicModification});
    const UndoGroup group(undo);
    updateThumbValues(records, undo);
    if (!records.empty())
        undo.setActionName("resetAllInSingleMode");
}

} // namespace chronomender
