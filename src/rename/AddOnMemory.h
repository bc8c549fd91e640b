// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameChoices.h"

namespace chronomender {

/// Remembers, at the begin of a run, what the user typed as add-ons: in the items of a selection,
/// else in the folders. What is kept stays as it is. The texts that `addOnsOfPic` answers for the
/// items of the scope are the same before and after. Main thread.
void rememberAddOns(const RenameScope &scope, const RenameChoices &choices);

/// The add-on texts of one item: what it or its folder has, where that is to be kept, else what the
/// user typed. Any thread while nothing changes the item.
AddOnTexts addOnsOfPic(const MySinglePic &pic, const RenameChoices &choices);

} // namespace chronomender
