// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreProcess.h"

#include <set>

namespace chronomender {

/// The items of a folder's main list that a rename would take, in the folder's order: those of the
/// request's selection, without those that a save takes in the same run. Main thread.
std::vector<MySinglePicPtr> itemsToRename(const MySingleFolder &folder, const SaveRequest &request,
                                          const std::vector<MySinglePicPtr> &savedItems);

/// Stage one of a rename for one folder: proves that the files of the items, dependents too, are
/// still what was read, stores the proofs in the items and appends the problems found. Calculates
/// no date, and makes no item part of a save. False when cancelled.
bool proveForRename(const MySingleFolder &folder, const std::vector<MySinglePicPtr> &items,
                    const SaveServices &services, ProgressCounter &progress,
                    PreProcessResult &result);

} // namespace chronomender
