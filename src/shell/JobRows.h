// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Jobs.h"

#include <cstddef>
#include <string>
#include <vector>

namespace chronomender {

/// "120 of 400 · 35 per second · 8 s left", as far as it is known; "being stopped" while that
/// waits.
std::string progressText(const JobStatus &status);

/// Works of one kind as one, as they are stopped together: under the title of the first, with what
/// they have done together; in the order in which they came.
std::vector<JobStatus> mergedByKind(const std::vector<JobStatus> &statuses);

/// "412 items · 3 selected · 12 unsaved"; parts without a number are left out.
std::string sessionText(std::size_t items, std::size_t selected, std::size_t unsaved);

} // namespace chronomender
