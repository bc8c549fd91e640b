// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderPlans.h"
#include "KeyStates.h"
#include "UserDefaults.h"

namespace chronomender {

// What the options of a command line mean to an import.

KeyStates keyStates(const FolderPlan &plan);

/// The sequence that all items are to get. A first date without a zone is one of the system's.
DateSequence dateSequence(const EmptyTagsSpec &spec, const Zones &zones);

/// Says how the folder's movies are read: as the block says, else as the preferences do. So the
/// import need not ask.
void settleMovieOptions(const FolderBlock &block, const UserDefaults &defaults,
                        MySingleFolder &folder);

} // namespace chronomender
