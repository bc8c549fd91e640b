// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <unordered_set>
#include <vector>

namespace chronomender {

using PicSet = std::unordered_set<MySinglePicPtr>;

/// The items in the order of `source_full`; those not listed come first. Main thread.
std::vector<MySinglePicPtr> sortedThumbsArray(const PicSet &pics);

} // namespace chronomender
