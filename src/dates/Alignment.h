// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateModifications.h"
#include "NewDates.h"

#include <cstddef>
#include <string>
#include <vector>

namespace chronomender {

/// What can be done to a selection. The numbers are those of the menu.
enum class AlignCommand : int {
    MatchingGaps = 1,   ///< spread evenly between the first and the last
    MinimizingGaps = 2, ///< pack around the main item, one second apart
    Filename = 3,       ///< give the dates out in the order of the names
    Reversing = 4,      ///< swap the dates end for end
    ReversingAlt = 5,   ///< reverse the order and keep the gaps
    CopyDigitizedOld = 6,
    CopyDigitizedNew = 7,
    CopyTiffOld = 8,
    CopyTiffNew = 9,
    CopyFileCreationOld = 10,
    CopyFileCreationNew = 11,
    CopyFileModificationOld = 12,
    CopyFileModificationNew = 13,
};

/// The selected items in display order, and the main one among them (null: the first).
struct AlignSelection {
    std::vector<MySinglePicPtr> sortedSelectedThumbsArray;
    MySinglePicPtr picSelection;
};

/// What a command wants: by how much each item has to move, and the text key that names the step.
/// Nothing is moved yet; no records mean that the command does nothing.
struct Alignment {
    std::vector<ShiftRecord> records;
    std::string actionName;
};

/// Times are cut to whole seconds before they are compared, so that no item gains or loses the
/// fraction that it has. Items without a date take no part. `context` is a live calculation's, by
/// which the copying commands ask for NEW dates; no item changes.
Alignment alignment(AlignCommand command, const AlignSelection &selection,
                    const NewDateContext &context);

/// Two neighbours share a second, or the first stands at the start of 1970.
bool areThereIdenticalTimesIn(const std::vector<MySinglePicPtr> &pics);

enum class AlignOutcome { Done, NothingChanged, RefusedOutOfBounds };
/// Carries a command out as one undoable step: folders of the selection go into single mode first,
/// where each item keeps the date that it shows. Refused as a whole when an item would leave the
/// bounds of all dates. A command without records, or with none for an item that can be shifted,
/// changes nothing; one whose items all stand right already is a step. Main thread.
AlignOutcome realignSelection(AlignCommand command, const AlignSelection &selection,
                              const NewDateContext &context, UndoManager &undo);

/// The slot holds a date that at least one of the items could take over: neither its main date nor
/// the one it shows and, for a NEW slot, not what the file holds. "Now" is no date to take over.
bool isCopyOffered(AlignCommand command, const std::vector<MySinglePicPtr> &pics,
                   const NewDateContext &context);
/// Text key of the menu that holds the copying commands.
constexpr const char *copyMenuTitleKey(std::size_t selectedItems) {
    return selectedItems == 1 ? "menu_copyOtherFileDate_single"
                              : "menu_copyOtherFileDate_selection";
}

} // namespace chronomender
