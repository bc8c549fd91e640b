// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UndoManager.h"
#include "Zones.h"

#include <cstddef>
#include <vector>

namespace chronomender {

/// Which files of a group take the other reading of a stamp that means two instants. The numbers
/// are those of the menu.
enum class AlternativeTarget : int {
    Master = 1,            ///< the master, or the dependent where only that is ambiguous
    Dependent = 2,         ///< the dependent alone, where the master is ambiguous as well
    DependentAsMaster = 3, ///< the dependent takes the master's reading
    Both = 4,              ///< both, only where both are ambiguous
};

/// Reads ambiguous stamps as the earlier instant (`isAlternative`) or as the later again, as one
/// undoable step. Items whose stamps mean one instant only are passed over. The number of files
/// whose reading changed. Main thread.
std::size_t useAmbiguityAlternative(const std::vector<MySinglePicPtr> &pics,
                                    AlternativeTarget target, bool isAlternative,
                                    const Zones &zones, UndoManager &undo);

/// The same for one file; registers its inverse. False when it was read so already.
bool changeAmbiguityCorrectionStateTo(MySinglePic &pic, bool isAlternative, const Zones &zones,
                                      UndoManager &undo);

} // namespace chronomender
