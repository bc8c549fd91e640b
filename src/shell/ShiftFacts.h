// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateDrag.h"
#include "DateModifications.h"
#include "FolderDrag.h"
#include "MyCompoundFolder.h"
#include "Zones.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// What the fields of a shift show: the shift of the selected folders in together mode, that of the
/// selected items in single mode.
struct ShiftFacts {
    enum class Target : std::uint8_t { Nothing, Folders, Items };
    Target target = Target::Nothing;
    std::string reason; ///< why there is nothing to shift; "" where there is
    Combined<EditMode> mode;
    CompoundFields fields;  ///< absent: the folders or items differ
    bool isShifted = false; ///< there is something to reset
    std::string hint;       ///< what becomes of the first item's date
};

/// `isSaving`: nothing can be changed now, but seen. `items` are the selected ones in display
/// order. What a `drag` would make of them is told as if it were done. Main thread.
ShiftFacts shiftFacts(const MyCompoundFolder &folders, const std::vector<MySinglePicPtr> &items,
                      bool isSaving, const Zones &zones, const DateDrag *drag = nullptr);

/// The fields of a shift as a person edits them, in the order of the screen.
inline constexpr std::array<std::optional<std::string> CompoundFields::*, 5> shiftFields{
    &CompoundFields::dmDirection, &CompoundFields::dmDays, &CompoundFields::dmHours,
    &CompoundFields::dmMinutes, &CompoundFields::dmSeconds};

/// Gives each item the shift that the fields say, undoably in one step; absent parts stay the
/// item's own. Items of folders in together mode are passed over. Refused as a whole out of bounds.
DateChangeOutcome shiftItemsTo(const std::vector<MySinglePicPtr> &items,
                               const CompoundFields &fields, UndoManager &undo,
                               const MySinglePicPtr &mainPic);

} // namespace chronomender
