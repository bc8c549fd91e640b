// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyCompoundFolder.h"
#include "MySingleFolder.h"
#include "UndoManager.h"

#include <optional>
#include <vector>

namespace chronomender {

/// The bounds of all shifted dates: 0001-01-02 00:00:00 and 4999-12-31 23:59:59 UTC.
Date minDate();
Date maxDate();

/// An item and what is to be added to its shift.
struct ShiftRecord {
    MySinglePicPtr thumb;
    absl::Duration dateDifference;
};

/// The item can be shifted: it has a correctable date and is not in the trash.
bool isMovable(const MySinglePic &pic);
/// A total shift leaves the item's date, or the folder's first and last correctable one, between
/// the bounds of all dates. Markers are never shifted and so never leave them.
bool staysInsideBounds(const MySinglePic &pic, absl::Duration totalShift);
bool staysInsideBounds(const MySingleFolder &folder, absl::Duration totalShift);

/// Adds to the item's own shift; its dependent takes the same value. Types without a correctable
/// date never shift. Keeps the folder's count of items with a shift of their own.
void updateSinglePicModificationBy(MySinglePic &pic, absl::Duration difference);

/// Sets the together shift from the texts of the date fields. Both direction flags follow the shown
/// sign, here as in every setter.
void setDirection(MySingleFolder &folder, const DateModificationFields &fields);
void setDirection(const MyCompoundFolder &folders, const DateModificationFields &fields);
/// Sets the together shift; `isDirectionNegative` keeps a shown "-" at a shift of 0.
void setSfDateModificationsFromTimeInterval(MySingleFolder &folder, absl::Duration shift,
                                            bool isDirectionNegative);
void setSfDateModificationsFromTimeInterval(const MyCompoundFolder &folders, absl::Duration shift,
                                            bool isDirectionNegative);
/// Texts of a shift: direction, days, hours, minutes, seconds; fractions are dropped from the text.
DateModificationFields fieldsFromTimeInterval(absl::Duration shift, bool isDirectionNegative);
/// The shift that the texts say. Days may have a fraction; texts that are no number count as 0.
absl::Duration timeIntervalFromFields(const DateModificationFields &fields);

/// Fields of several folders together: an absent field keeps each folder's own part.
struct CompoundFields {
    std::optional<std::string> dmDirection;
    std::optional<std::string> dmDays, dmHours, dmMinutes, dmSeconds;
};
/// The folder's fields with the present parts of `changes` put in their place.
DateModificationFields keepingOwnParts(const MySingleFolder &folder, const CompoundFields &changes);

/// Recounts the folder and its range of dates. The last item leaving takes the range, the together
/// shift and the folder's undo steps with it, unless the items are only being read again.
enum class FolderRefresh { Normal, DuringReimport };
void sfUpdatePicsFromAndTill(MySingleFolder &folder, UndoManager *undo = nullptr,
                             FolderRefresh refresh = FolderRefresh::Normal);
/// The same for every folder that one of the items stands in.
void updateFolderRanges(const std::vector<MySinglePicPtr> &pics);
/// An undo step that refreshes the folder's range. One stands at each end of a group, as a group is
/// performed backwards: so the range is right after undo and after redo.
void registerRangeRefresh(MySingleFolder &folder, UndoManager &undo);
// The folder's count of items with a shift of their own; no item is changed here.
void addSinglePicModeImage(MySingleFolder &folder);
void removeSinglePicModeImage(MySingleFolder &folder);
/// After a save: items whose shift was written have none any more; those whose save failed still
/// count.
void clearSinglePicModeImages(MySingleFolder &folder);

/// Switches the mode. Into single mode each item keeps the date it shows: it takes the folder's
/// shift as its own. Into together mode the items' shifts are dropped.
void changeEditMode(MySingleFolder &folder, EditMode mode);
/// The same as an undoable step. Undo brings mode, folder shift, shown fields, direction flags and
/// every item's own shift back as they were; redo switches again.
void changeEditMode(MySingleFolder &folder, EditMode mode, UndoManager &undo);

/// Each folder that one of the items stands in, once.
std::vector<MySingleFolderPtr> foldersOf(const std::vector<MySinglePicPtr> &pics);

/// Applies shift records as one undoable step, passing over items that cannot be shifted. The
/// ranges of all folders concerned are right afterwards, after undo and after redo. `selection` is
/// the main item, which a window shows again after undo and redo; the first where it is not moved.
void updateThumbValues(const std::vector<ShiftRecord> &records, UndoManager &undo,
                       const MySinglePicPtr &selection = nullptr);
/// One item's part of such a step: adds the difference and registers its negation.
enum class ShiftedItem { Selection, Other };
void undoRedoUpdateSinglePicModeDate(MySinglePic &pic, absl::Duration difference,
                                     ShiftedItem isSelection, UndoManager &undo);
void undoRedoUpdateFolderModeDateModifications(MySingleFolder &folder, absl::Duration shift,
                                               bool isDirectionNegative, UndoManager &undo);
/// Gives every item of the folder its original date back, as one undoable step.
void dateValuesResetSingleMode(MySingleFolder &folder, UndoManager &undo);

} // namespace chronomender
