// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <vector>

namespace chronomender {

/// The items of all folders by the date shown, then by name in natural order, then by folder, then
/// by order of creation.
std::vector<MySinglePicPtr> sortedForDisplay(const std::vector<MySingleFolderPtr> &folders);

} // namespace chronomender
