// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenamePlan.h"

namespace chronomender {

/// What a plan comes to, one for each item, folder after folder.
std::vector<ItemRename> outcomesOf(const RenamePlan &plan, const RenameChoices &choices);

/// What became of a folder's items behind their moves; nothing, where it was not reached.
std::vector<ItemRename> outcomesOfRun(const FolderMoves &folder, const RenameChoices &choices);

/// Brings the model up to date with what was moved of a folder, and with what was not. A rename of
/// a selection changes the count of errors only for its own items. Main thread.
void applyToModel(FolderMoves &folder, const std::vector<ItemRename> &outcomes,
                  const RenameChoices &choices, bool isOfSelection);

} // namespace chronomender
