// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveErrors.h"

#include <memory>
#include <string_view>
#include <vector>

namespace chronomender {

struct PatchPlan;

enum class SlotResult : std::uint8_t {
    Unchanged,
    WrittenInPlace,
    WrittenByTool, ///< by the external tool, which may make the file longer
    Refused,
    NotStorable, ///< there is a new date, and this system has no place for it
};
struct SlotOutcome {
    std::string_view slot; ///< name of the slot, from `slotDescriptions`
    OptionalDate oldDate, newDate;
    SlotResult result = SlotResult::Unchanged;
    std::string_view reasonKey = {}; ///< text key of why it was refused; "" for none
};

/// A file of an item that is renamed; names are those inside the item's folder.
struct RenamedFile {
    std::string oldName, newName; ///< where it stands now, or in a dry run would stand
};
enum class RenameResult : std::uint8_t {
    Renamed,
    Unchanged,    ///< it has its name already
    Refused,      ///< nothing of it was moved
    LeftOnTheWay, ///< it stands at its temporary name
    NotReached,   ///< the run was cancelled before it
};
/// What became of an item's names, or in a dry run would become.
struct ItemRename {
    MySinglePicPtr pic;
    RenameResult result = RenameResult::Unchanged;
    std::string folderPath, wantedName; ///< the name of the main file without a number
    std::int64_t addedNumber = 0;       ///< behind the name, from 2; 0: none
    std::vector<RenamedFile> files;     ///< the main file first, then its companions
    std::vector<SaveError> errors = {};
};

enum class ItemResult : std::uint8_t {
    Saved,
    Unchanged,  ///< nothing to write
    Refused,    ///< a problem stopped it before the save, or the proof failed
    Failed,     ///< an error in the middle
    NotReached, ///< the run was cancelled before it
};

/// What happened to one item, or in a dry run would happen.
struct ItemOutcome {
    MySinglePicPtr pic;
    ItemResult result = ItemResult::Unchanged;
    std::vector<SlotOutcome> slots;
    std::vector<PreSaveFinding> problems;
    std::vector<SaveError> errors;
    /// What stage two carries out: the plan that the problems and slots above were told from.
    std::shared_ptr<const PatchPlan> plan = {};
};

} // namespace chronomender
