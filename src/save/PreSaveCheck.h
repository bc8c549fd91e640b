// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PatchPlan.h"
#include "SaveErrors.h"

#include <optional>
#include <vector>

namespace chronomender {

/// The problem that an item's stored proof stands for; none for a file that is what was read.
std::optional<PreSaveProblem> checkFileUnchangedStateForSaveRenameErrors(const MySinglePic &pic);

/// Problems of an item whose NEW slots are calculated and planned, at most one of each kind;
/// appended to `findings` under `pic`. `calculated` is the item itself or a copy of it.
void checkCalculatedValuesForSaveErrors(const MySinglePicPtr &pic, const MySinglePic &calculated,
                                        const PatchPlan &plan,
                                        std::vector<PreSaveFinding> &findings);

/// The stamps that the plans leave in the two files of a live photo would not join them again: an
/// import that goes by their clocks would find two items. Both are calculated copies.
bool isDriftingApart(const MySinglePic &still, const PatchPlan &stillPlan, const MySinglePic &movie,
                     const PatchPlan &moviePlan);

} // namespace chronomender
