// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameChoices.h"

#include <cstdint>
#include <functional>

namespace chronomender {

/// Walks the counting order and tells each item that is to be renamed with its counter, which is
/// final. The number rises for every item in the order, also for those that are not renamed: the
/// numbers are those of the full sequence, unless only the selection is counted.
void walkCounters(const RenameScope &scope, const RenameChoices &choices,
                  const std::function<void(const MySinglePicPtr &pic, std::int64_t counter)> &each);

/// The counter of one item, as a live row shows it; the same as the walk's. None for an item that
/// is not listed.
std::optional<std::int64_t> counterOfPic(const MySinglePic &pic, const RenameScope &scope,
                                         const RenameChoices &choices);

} // namespace chronomender
