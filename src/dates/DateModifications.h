// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UndoManager.h"

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

/// Adds to the item's own shift; its dependent takes the same value. Types without a correctable
/// date never shift. Keeps the folder's count of items with a shift of their own.
void updateSinglePicModificationBy(MySinglePic &pic, absl::Duration difference);

/// Sets the together shift from the texts of the date fields.
void setDirection(MySingleFolder &folder, const DateModificationFields &fields);
/// Sets the together shift; `isDirectionNegative` keeps a shown "-" at a shift of 0.
void setSfDateModificationsFromTimeInterval(MySingleFolder &folder, absl::Duration shift,
                                            bool isDirectionNegative);
/// Texts of a shift: direction, days, hours, minutes, seconds; fractions are dropped from the text.
DateModificationFields fieldsFromTimeInterval(absl::Duration shift, bool isDirectionNegative);
absl::Duration timeIntervalFromFields(const DateModificationFields &fields);

void sfUpdatePicsFromAndTill(MySingleFolder &folder);
void addSinglePicModeImage(MySingleFolder &folder);
void removeSinglePicModeImage(MySingleFolder &folder);
void clearSinglePicModeImages(MySingleFolder &folder);

/// Switches the mode. Into single mode each item keeps the date it shows: it takes the folder's
/// shift as its own. Into together mode the items' shifts are dropped.
void changeEditMode(MySingleFolder &folder, EditMode mode);

/// Applies shift records as one undoable step.
void updateThumbValues(const std::vector<ShiftRecord> &records, UndoManager &undo);
void undoRedoUpdateSinglePicModeDate(MySinglePic &pic, absl::Duration difference,
                                     UndoManager &undo);
void undoRedoUpdateFolderModeDateModifications(MySingleFolder &folder, absl::Duration shift,
                                               bool isDirectionNegative, UndoManager &undo);
/// Gives every item of the folder its original date back, undoably.
void dateValuesResetSingleMode(MySingleFolder &folder, UndoManager &undo);

} // namespace chronomender
