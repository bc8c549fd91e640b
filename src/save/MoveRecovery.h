// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IntentRecord.h"
#include "UnitRecovery.h"

#include <functional>
#include <span>
#include <vector>

namespace chronomender {

struct MoveServices {
    FileLayer &files;
    /// Adds units to the record, before a name is used that no unit knows; false: it is not on
    /// disk.
    std::function<bool(std::span<const UnitIntent> units, FileError *error)> record;
    std::function<bool(int descriptor)> hasLastingInodes = chronomender::hasLastingInodes;
};

struct RecoveredMoves {
    std::vector<RecoveredFile> told;
    /// Units that must stay recorded; those that were recorded meanwhile count on from the last.
    std::vector<std::size_t> left;
};

/// Brings the files that the units were to rename to their new names, or back to their old ones,
/// over all units together: they may have changed places. An item's files stay together. Where
/// somebody else has taken one of the names, all go the other way, and where that is taken too, get
/// a number behind their new names: nothing is ever put over a file. A file that has none of its
/// names any more is left alone. Nothing is moved before all files are found; may be interrupted
/// anywhere and done again.
RecoveredMoves recoverMoves(std::span<const RecordedUnit> units, RecoveryDirection direction,
                            const MoveServices &services);

} // namespace chronomender
