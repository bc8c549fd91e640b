// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "TiffBlock.h"

namespace chronomender {

/// Reads time, date and location of the GPS directory at `directory` into `dates`. The location is
/// there as soon as all four coordinate tags are, even if one of their values cannot be read.
void readGps(const TiffBlock &block, std::uint32_t directory, DatesData &dates);

} // namespace chronomender
