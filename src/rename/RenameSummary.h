// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <string>
#include <vector>

namespace chronomender {

/// What a rename is about to move, in a sentence: single files, and groups, which are items with
/// the files that go along with them; and how many files that makes.
std::string renameSummaryString(const std::vector<MySinglePicPtr> &pics);

} // namespace chronomender
